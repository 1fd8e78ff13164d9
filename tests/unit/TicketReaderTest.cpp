// The decoding of byte values, and what each getter of a text makes of a value.
#include "TicketReader.h"

#include "JobState.h"
#include "Rows.h"
#include "TestTicket.h"

#include <cstring>

TEST(TicketReader, DecodesByteValues)
{
    CheckRows("byte-values", [](const Cells &given) -> Cells {
        std::vector<char> text(given[0].c_str(), given[0].c_str() + given[0].size() + 1);
        numstrtochar(text.data(), given.size() > 1 ? Number(given[1]) : static_cast<int32_t>(text.size()));
        return {TextOf(text)};
    });
    char text[] = "/65/66";
    numstrtochar(text, 3);
    EXPECT_EQ(text[3], '/'); // nothing is written from there on
}

static const TicketGetter textGetters[] = {GetTicketString,
                                           GetTicketStringConvertedToPrtLang,
                                           GetTicketStringConvertedToPrtLangForUTF8,
                                           GetTicketStringConvertedToPPDEncodingString,
                                           GetNumberUpTicketString,
                                           GetNumberUpTicketStringForComment};

TEST(TicketReader, TextOfEachGetter)
{
    CheckRows("ticket-texts", [](const Cells &given) {
        Cells texts;
        const int32_t present = given[0] != "(absent)";
        for (const TicketGetter getter : textGetters) {
            auto field = Buffer(Number(given[1]));
            EXPECT_EQ(Read(getter, given[0], field), present || texts.size() > 3) << texts.size();
            texts.push_back(TextOf(field));
        }
        auto field = Buffer(Number(given[1]));
        const auto legacy = static_cast<int32_t>(texts[1].size()), utf8 = static_cast<int32_t>(texts[2].size());
        EXPECT_EQ(Read(GetLengthOfTicketStringConvertedToPrtLang, given[0], field), legacy);
        EXPECT_EQ(TextOf(field), texts[1]);
        EXPECT_EQ(Read(GetLengthOfTicketStringConvertedToPrtLangForUTF8, given[0], field), utf8);
        EXPECT_EQ(TextOf(field), texts[2]);
        return texts;
    });
}

TEST(TicketReader, PagesPerSheetOfTheLayout)
{
    CheckRows("ticket-layouts", [](const Cells &given) -> Cells {
        snprintf(StdLayoutRowInfo, sizeof StdLayoutRowInfo, "%s", given[0].c_str());
        snprintf(StdLayoutColumnInfo, sizeof StdLayoutColumnInfo, "%s", given[1].c_str());
        auto plain = Buffer(10), comment = Buffer(10), option = Buffer(10);
        Read(GetNumberUpTicketString, "(absent)", plain);
        Read(GetNumberUpTicketStringForComment, "(absent)", comment);
        Read(GetNumberUpTicketString, "6", option);
        EXPECT_EQ(TextOf(option), "N6"); // it goes before the layout
        StdLayoutRowInfo[0] = StdLayoutColumnInfo[0] = '\0';
        return {TextOf(plain), TextOf(comment)};
    });
}
