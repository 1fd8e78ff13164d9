// The getters and the decoding of byte values.
#include "TicketReader.h"

#include "JobState.h"
#include "Rows.h"

#include <algorithm>
#include <cstring>

// The job's options with the ticket K of this value, or without it.
struct Ticket {
    std::string value;
    char name[2] = "K";
    cups_option_t option = {name, value.data()};
    int32_t present = value != "(absent)";
};

static int32_t Read(TicketGetter getter, Ticket ticket, std::vector<char> &field)
{
    return getter("K", ticket.present, &ticket.option, field.data(), static_cast<int32_t>(field.size()));
}

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

TEST(TicketReader, NumbersAndFlags)
{
    CheckRows("ticket-numbers", [](const Cells &given) -> Cells {
        Ticket ticket = {given[0]};
        int32_t integer = 99, flag = 99;
        float decimal = 99;
        EXPECT_EQ(GetTicketInteger("K", ticket.present, &ticket.option, &integer, sizeof integer), ticket.present);
        EXPECT_EQ(GetTicketFloat("K", ticket.present, &ticket.option, &decimal, sizeof decimal), ticket.present);
        EXPECT_EQ(CheckTicketKey("K", ticket.present, &ticket.option, &flag, sizeof flag), 1);
        char text[32];
        snprintf(text, sizeof text, "%g", decimal);
        return {std::to_string(integer), text, std::to_string(flag)};
    });
}

static const TicketGetter textGetters[] = {GetTicketString,
                                           GetTicketStringConvertedToPrtLang,
                                           GetTicketStringConvertedToPrtLangForUTF8,
                                           GetTicketStringConvertedToPPDEncodingString,
                                           GetNumberUpTicketString,
                                           GetNumberUpTicketStringForComment};

TEST(TicketReader, MalformedValuesStayWithinTheField)
{
    CheckRows("ticket-malformed", [](const Cells &given) -> Cells {
        for (const TicketGetter getter : textGetters)
            for (const int32_t size : {0, 1, 2, 3, 10, 255}) {
                auto field = Buffer(size);
                Read(getter, {given[0]}, field);
                EXPECT_TRUE(size == 0 || field.back() == '\0') << given[0] << ' ' << size;
            }
        return {""};
    });
}

TEST(TicketReader, TextOfEachGetter)
{
    CheckRows("ticket-texts", [](const Cells &given) {
        Cells texts;
        const int32_t present = given[0] != "(absent)";
        for (const TicketGetter getter : textGetters) {
            auto field = Buffer(Number(given[1]));
            EXPECT_EQ(Read(getter, {given[0]}, field), present || texts.size() > 3) << texts.size();
            texts.push_back(TextOf(field));
        }
        auto field = Buffer(Number(given[1]));
        const auto legacy = static_cast<int32_t>(texts[1].size()), utf8 = static_cast<int32_t>(texts[2].size());
        EXPECT_EQ(Read(GetLengthOfTicketStringConvertedToPrtLang, {given[0]}, field), legacy);
        EXPECT_EQ(TextOf(field), texts[1]);
        EXPECT_EQ(Read(GetLengthOfTicketStringConvertedToPrtLangForUTF8, {given[0]}, field), utf8);
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
        Read(GetNumberUpTicketString, {"(absent)"}, plain);
        Read(GetNumberUpTicketStringForComment, {"(absent)"}, comment);
        Read(GetNumberUpTicketString, {"6"}, option);
        EXPECT_EQ(TextOf(option), "N6"); // it goes before the layout
        StdLayoutRowInfo[0] = StdLayoutColumnInfo[0] = '\0';
        return {TextOf(plain), TextOf(comment)};
    });
}

TEST(TicketReader, TablesShareTheJobsOptions)
{
    int32_t first = 0, last = 0, absent = 0;
    char text[4];
    const ticketData table[] = {{"com.x.First", &first, sizeof first, GetTicketInteger},
                                {"com.x.Last", &last, sizeof last, GetTicketInteger},
                                {"com.x.Text", text, sizeof text, GetTicketStringConvertedToPrtLang},
                                {"com.x.Absent", &absent, sizeof absent, GetTicketInteger}};
    const char *argv[] = {"filter", "1", "u", "t", "1", "COM.X.FIRST=1 com.x.Last=2 com.x.Last=3 com.x.Text='a b c'",
                          nullptr};
    EXPECT_EQ(GetTicketFromArray(argv, table, std::size(table)), 1);
    EXPECT_TRUE(first == 1 && last == 3 && absent == -1 && strcmp(text, "a b") == 0);
    const cups_option_t *shared = OptionsOfJob(argv).list;
    EXPECT_EQ(OptionsOfJob(argv).list, shared);
    argv[5] = "com.x.First=8";
    EXPECT_EQ(GetTicketFromArray(argv, table, 2), 1);
    EXPECT_TRUE(first == 8 && last == -1);
    argv[5] = nullptr;
    EXPECT_EQ(OptionsOfJob(argv).count, 0);
}

// More than the system lets one argument be, and more options than a job has.
TEST(TicketReader, LongOptions)
{
    std::string text = "a=" + std::string(4 << 20, '/');
    for (int i = 0; i < 20000; i++)
        text += " option" + std::to_string(i) + "=/" + std::to_string(i);
    const char *const argv[] = {"", "1", "taro", "Report", "1", text.c_str(), nullptr};
    char value[8], cut[64];
    const ticketData table[] = {{"option19999", value, sizeof value, GetTicketString},
                                {"a", cut, sizeof cut, GetTicketString}};
    GetTicketFromArray(argv, table, 2);
    EXPECT_STREQ(value, "/19999");
    EXPECT_EQ(cut, std::string(63, '/'));
}
