// The characters of names, and what no job reaches; the names of whole jobs are in data/jobs/names.jobs.

#include "NameValidation.h"
#include "JobState.h"

#include <cstring>
#include <gtest/gtest.h>

TEST(NameValidation, AllowedCharacters)
{
    const struct {
        const char *text;
        int32_t legacy, product02;
    } cases[] = {
        {"", 1, 1},         {" ~", 1, 1},       {"\x1F", 0, 0},
        {"a\x7F", 0, 0},    {"\xA0", 0, 0},     {"\xA1\xDF", 1, 1},
        {"\x81\x3F", 0, 0}, {"\x81\x40", 1, 0}, {"\x9F\xFC", 1, 0},
        {"\x9F\xFD", 0, 0}, {"\xE0\x3F", 0, 0}, {"\xE0\x40", 1, 0},
        {"\xFC\xFC", 1, 0}, {"\xFC\xFD", 0, 0}, {"\x81\xFF", 1, 0},
        {"\x81\x60", 1, 1}, {"\x81\x61", 1, 0}, {"\xFF\x61", 0, 1},
        {"\x82", 1, 0},     {"a\x81", 0, 0},    {"\x93\xFA\tb", 0, 0},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(ValidateDada(c.text, userNameValidateDataScale), c.legacy) << c.text;
        EXPECT_EQ(ValidateDada(c.text, docuNameValidateDataScale), c.legacy) << c.text;
        EXPECT_EQ(ValidateDada(c.text, docuNameValidateDataScaleForProduct03), c.legacy) << c.text;
        EXPECT_EQ(ValidateDada(c.text, docuNameValidateDataScaleForProduct02), c.product02) << c.text;
        EXPECT_EQ(ValidateDada(c.text, userNameValidateDataScaleForUTF8), 1) << c.text;
        EXPECT_EQ(ValidateDada(c.text, docuNameValidateDataScaleForProduct03UTF8), 1) << c.text;
    }
    EXPECT_FALSE(ISByteValid("a", DataRangeTable{}));
    EXPECT_FALSE(ISWordValid("ab", DataRangeTable{}));
}

TEST(NameValidation, OnlySpaces)
{
    for (const char *text : {"", "   ", "\x81\x40", " \x81\x40 "})
        EXPECT_EQ(IsAllSpace(text), 1) << text;
    for (const char *text : {"\x81", "\x81\x41", " a", "\t", "\u3000"})
        EXPECT_EQ(IsAllSpace(text), 0) << text;
}

TEST(NameValidation, WhatNoJobReaches)
{
    const char *argv[] = {"filter", "1", "user", "title", "1", nullptr, nullptr};
    const char product02[] = "com.orvane.dlg.printsettings.PrintTypeProductTypeTicketKey=2";
    const char product07[] = "com.orvane.dlg.printsettings.PrintTypeProductTypeTicketKey=7";

    argv[5] = product02;
    strcpy(PTStdDocumentName, "ABCDEFGHIJKLMNOP");
    InvalidatePrintTypeDocumentNameForProductType(argv);
    EXPECT_STREQ(PTStdDocumentName, "ABCDEFGHIJKL");

    // Product type 7 leaves what lies behind its 24 bytes, product type 2 clears it.
    memset(StdDocumentName, 'a', 24);
    memset(PTStdDocumentName, 'x', 25);
    argv[5] = product07;
    InvalidateStdDocumentNameForProductType(argv);
    EXPECT_STREQ(PTStdDocumentName, "aaaaaaaaaaaaaaaaaaaaaaaax");
    argv[5] = product02;
    InvalidateStdDocumentNameForProductType(argv);
    EXPECT_STREQ(PTStdDocumentName, "aaaaaaaaaaaa");

    memset(StdDocumentName, 'a', 25);
    InvalidateStdDocumentName();
    EXPECT_EQ(strlen(StdDocumentName), 24u);

    for (const size_t length : {255u, 256u}) {
        memset(StdUserName, 'a', length);
        InvalidateStdUserName();
        EXPECT_EQ(strlen(StdUserName), 255u);
    }
}
