// Questions about the queue's PPD: names match by their beginning, and another PPD gives other answers.
#include "PPDLookup.h"

#include "TestPPD.h"

TEST(PPDLookup, FirstAttributeWhoseNameBeginsSo)
{
    const TestPPD ppd("*OVPSDecompModeLater: \"1\"\n*OVPSDecompMode: \"2\"\n*Empty: \"\"\n*ColorDevice: True\n");
    EXPECT_STREQ(PPDAttributeValue("OVPSDecompMode"), "1");
    EXPECT_TRUE(PPDAttributeIs("OVPSDecomp", "1"));
    EXPECT_FALSE(PPDAttributeIs("OVPSDecompMode", "2"));
    EXPECT_FALSE(PPDAttributeIs("OVPSDecompMode", ""));
    EXPECT_EQ(PPDAttributeValue("OVPSDecompModeLatest"), nullptr);
    EXPECT_EQ(PPDAttributeValue("PSDecompMode"), nullptr);
    EXPECT_EQ(CheckIfPPDKeywordSupported(JobPPD(), "Color", "ru"), 1);
    EXPECT_EQ(CheckIfPPDKeywordSupported(JobPPD(), "ColorDevice", "Truer"), 0);
    EXPECT_EQ(CheckIfPPDKeywordSupported(JobPPD(), "Empty", "1"), 0);
    EXPECT_EQ(CheckIfPPDKeywordSupported(nullptr, "ColorDevice", "True"), 0);
}

TEST(PPDLookup, AnotherPPDGivesOtherAnswers)
{
    unsetenv("PPD");
    EXPECT_EQ(JobPPD(), nullptr);
    EXPECT_FALSE(IsUTF8Mode());
    const TestPPD legacy("*OVPrinterLanguageEncoding: \"UTF-8 \"\n*ColorDevice: True\n");
    EXPECT_FALSE(IsUTF8Mode());
    EXPECT_EQ(IsColorDeivce(), 1);
    {
        const TestPPD utf8("*OVPrinterLanguageEncoding: \"UTF-8\"\n");
        EXPECT_TRUE(IsUTF8Mode());
        EXPECT_EQ(IsColorDeivce(), 0);
        const ppd_file_t *const open = JobPPD();
        utf8.Use();
        EXPECT_EQ(JobPPD(), open); // read once
    }
    EXPECT_FALSE(IsUTF8Mode());
    legacy.Use();
    EXPECT_EQ(IsColorDeivce(), 1);
    EXPECT_FALSE(IsUTF8Mode());
    CloseJobPPD();
}
