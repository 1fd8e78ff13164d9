// TestPPD: a PPD with these attributes, the queue's as long as it lives.
#pragma once

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

struct TestPPD {
    const std::string path;

    explicit TestPPD(const std::string &attributes)
        : path(testing::TempDir() + std::to_string(getpid()) + "." + std::to_string(count++) + ".ppd")
    {
        std::ofstream(path) << "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                               "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n"
                            << attributes;
        Use();
    }
    ~TestPPD()
    {
        unsetenv("PPD");
        unlink(path.c_str());
    }
    TestPPD(const TestPPD &) = delete;
    TestPPD &operator=(const TestPPD &) = delete;

    void Use() const { setenv("PPD", path.c_str(), 1); }

    static inline int count = 0; // no two have the same name
};
