// The characters of names, and what no job reaches; the names of whole jobs are in data/jobs/names.jobs.
#include "NameValidation.h"

#include "JobState.h"
#include "Rows.h"

#include <cstring>
#include <utility>

TEST(NameValidation, AllowedCharacters)
{
    CheckRows("name-characters", [](const Cells &given) -> Cells {
        const char *text = given[0].c_str();
        const int32_t legacy = ValidateDada(text, userNameValidateDataScale);
        EXPECT_EQ(ValidateDada(text, docuNameValidateDataScale), legacy) << text;
        EXPECT_EQ(ValidateDada(text, docuNameValidateDataScaleForProduct03), legacy) << text;
        EXPECT_EQ(ValidateDada(text, userNameValidateDataScaleForUTF8), 1) << text;
        EXPECT_EQ(ValidateDada(text, docuNameValidateDataScaleForProduct03UTF8), 1) << text;
        return {std::to_string(legacy), std::to_string(ValidateDada(text, docuNameValidateDataScaleForProduct02))};
    });
}

TEST(NameValidation, WhatNoJobReaches)
{
    const char *argv[] = {
        "filter", "1", "user", "title", "1", "com.orvane.dlg.printsettings.PrintTypeProductTypeTicketKey=2", nullptr};
    strcpy(PTStdDocumentName, "ABCDEFGHIJKLMNOP");
    InvalidatePrintTypeDocumentNameForProductType(argv);
    EXPECT_STREQ(PTStdDocumentName, "ABCDEFGHIJKL");

    // After a name that fills the limit stands what stood there before; the types 2 and 3 empty it first.
    for (const auto &[type, length] : {std::pair<std::string, size_t>{"3", 64}, {"2", 12}, {"7", 80}}) {
        const std::string option = std::string(kPrintTypeProductType) + "=" + type;
        argv[5] = option.c_str();
        memset(PTStdDocumentName, 'x', 80);
        memset(StdDocumentName, 'a', 64);
        InvalidateStdDocumentNameForProductType(argv);
        EXPECT_EQ(strlen(PTStdDocumentName), length) << type;
        ClearJobState();
    }

    for (const size_t length : {255u, 256u}) {
        memset(StdUserName, 'a', length);
        InvalidateStdUserName();
        EXPECT_EQ(strlen(StdUserName), 255u);
    }
}
