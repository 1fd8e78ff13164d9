// Questions about the queue's PPD: names match by their beginning, and another PPD gives other answers.
#include "PPDLookup.h"

#include "TestPPD.h"

#include <utility>

TEST(PPDLookup, FirstAttributeWhoseNameBeginsSo)
{
    const TestPPD ppd("*OVPSDecompModeLater: \"1\"\n*OVPSDecompMode: \"2\"\n*Empty: \"\"\n*ColorDevice: True\n");
    EXPECT_TRUE(PPDAttributeIs("OVPSDecompMode", "1"));
    EXPECT_FALSE(PPDAttributeIs("OVPSDecompMode", "2"));
    EXPECT_FALSE(PPDAttributeIs("OVPSDecompMode", ""));
    EXPECT_EQ(PPDAttributeValue("OVPSDecompModeLatest"), nullptr);
    EXPECT_EQ(PPDAttributeValue("PSDecompMode"), nullptr);
    EXPECT_EQ(CheckIfPPDKeywordSupported(JobPPD(), "Color", "ru"), 1);
    EXPECT_EQ(CheckIfPPDKeywordSupported(JobPPD(), "ColorDevice", "Truer"), 0);
    EXPECT_EQ(CheckIfPPDKeywordSupported(JobPPD(), "Empty", "1"), 0);
    EXPECT_EQ(CheckIfPPDKeywordSupported(JobPPD(), "Absent", ""), 0);
    EXPECT_STREQ(PPDAttributeValue(JobPPD()->attrs[0]->name), JobPPD()->attrs[0]->value);
}

TEST(PPDLookup, AnotherPPDGivesOtherAnswers)
{
    const TestPPD utf8("*OVPrinterLanguageEncoding: \"UTF-8\"\n");
    const TestPPD colour("*OVPrinterLanguageEncoding: \"UTF-8 \"\n*ColorDevice: True\n*OpenUI *OVColorMode: PickOne\n"
                         "*DefaultOVColorMode: Colors\n*OVColorMode Colors: \"\"\n*CloseUI: *OVColorMode\n");
    for (const TestPPD *ppd : {&colour, &utf8, &colour}) {
        ppd->Use();
        EXPECT_EQ(IsUTF8Mode(), ppd == &utf8);
        EXPECT_EQ(IsColorDeivce(), ppd == &colour);
        EXPECT_EQ(getDefaultColorMode(), 0);
    }
    unsetenv("PPD");
    EXPECT_FALSE(IsUTF8Mode());
    EXPECT_EQ(IsColorDeivce(), 0);
    EXPECT_EQ(CheckIfPPDKeywordSupported(JobPPD(), "ColorDevice", ""), 0);
}

TEST(PPDLookup, SizesForBindingStandBeforePageSizes)
{
    const TestPPD ppd("*OVPageSize B5: \"516 729.9\"\n*OVPageSize B4: \"729\"\n*OVPageSize A3: \"big\"\n"
                      "*OVPageSizes A4: \"1 2\"\n*OVPageSize A40: \"3 4\"\n"
                      "*OpenUI *PageSize/Page: PickOne\n*DefaultPageSize: A4\n*PageSize A4: \"\"\n*PageSize A3: \"\"\n"
                      "*PageSize B5: \"\"\n*CloseUI: *PageSize\n*PaperDimension A4: \"595 842\"\n"
                      "*PaperDimension A3: \"842 1191\"\n*PaperDimension B5: \"1 1\"\n");
    const auto size = [](const char *name) {
        float width, length;
        const bool defined = PPDPageSizeInPoints(name, width, length);
        EXPECT_EQ(defined, width != 0 && length != 0);
        return std::pair(width, length);
    };
    EXPECT_EQ(size("B5"), std::pair(516.0F, 729.0F));
    EXPECT_EQ(size("A4"), std::pair(595.0F, 842.0F));
    EXPECT_EQ(size("A3"), std::pair(842.0F, 1191.0F)); // the attribute says no size
    EXPECT_EQ(size("B4"), std::pair(0.0F, 0.0F));      // half of one
    CloseJobPPD();
}
