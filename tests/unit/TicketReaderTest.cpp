// The getters and the decoding of byte values.

#include "TicketReader.h"
#include "JobState.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{

const TicketGetter textGetters[] = {GetTicketString,
                                    GetTicketStringConvertedToPrtLang,
                                    GetTicketStringConvertedToPrtLangForUTF8,
                                    GetLengthOfTicketStringConvertedToPrtLang,
                                    GetLengthOfTicketStringConvertedToPrtLangForUTF8,
                                    GetTicketStringConvertedToPPDEncodingString,
                                    GetNumberUpTicketString,
                                    GetNumberUpTicketStringForComment};

struct TextTicket {
    int32_t result;
    std::string text;
};

// Reads the ticket "K" from these options into a field of exactly `size` bytes.
TextTicket Read(TicketGetter getter, std::vector<cups_option_t> options, int32_t size)
{
    std::vector<char> field(static_cast<size_t>(std::max(size, 0)), 'x');
    const int32_t result = getter("K", static_cast<int32_t>(options.size()), options.data(), field.data(), size);
    EXPECT_TRUE(field.empty() || field.back() == '\0');
    return {result, std::string(field.begin(), std::find(field.begin(), field.end(), '\0'))};
}

TextTicket Read(TicketGetter getter, std::string value, int32_t size = 64)
{
    char name[] = "K";
    return Read(getter, {{name, value.data()}}, size);
}

} // namespace

TEST(TicketReader, DecodesByteValues)
{
    const struct {
        const char *text, *decoded;
    } cases[] = {
        {"/65/66/67", "ABC"}, {"/", "/"},        {"", ""},      {"A/65", "A/65"},    {"/65//66", "A"},
        {"/300/65", ""},      {"/65/", "A"},     {"//", ""},    {"/-1/256", "\xFF"}, {"/255/256", "\xFF"},
        {"/Users/x", ""},     {"/65x/66", "AB"}, {"/ 65", "A"}, {"/065", "A"},       {"/230/151/165", "日"},
        {"/65/0/66", "A"},    {"/-191", "A"},    {"/-256", ""},
    };
    for (const auto &c : cases) {
        std::vector<char> text(c.text, c.text + strlen(c.text) + 1);
        numstrtochar(text.data(), static_cast<int32_t>(text.size()));
        EXPECT_STREQ(text.data(), c.decoded) << c.text;
    }
    for (const int32_t size : {-1, 0, 1, 3}) { // nothing of a text that doesn't end within its size
        char text[] = "/65";
        numstrtochar(text, size);
        EXPECT_STREQ(text, "/65") << size;
    }
}

TEST(TicketReader, NumbersAndFlags)
{
    const struct {
        const char *value; // null: absent
        int32_t present, integer;
        float decimal;
    } cases[] = {
        {nullptr, 0, -1, -1}, {"", 1, 0, 0},    {"2", 1, 2, 2},        {"-7", 1, -7, -7},     {" 12abc", 1, 12, 12},
        {"abc", 1, 0, 0},     {"/65", 1, 0, 0}, {"1.75", 1, 1, 1.75f}, {"\xFF\xFE", 1, 0, 0},
    };
    for (const auto &c : cases) {
        std::string value = c.value ? c.value : "";
        char name[] = "K";
        cups_option_t option = {name, value.data()};
        int32_t integer = 99, flag = 99;
        float decimal = 99;
        EXPECT_EQ(GetTicketInteger("K", c.present, &option, &integer, sizeof integer), c.present);
        EXPECT_EQ(GetTicketFloat("K", c.present, &option, &decimal, sizeof decimal), c.present);
        EXPECT_EQ(CheckTicketKey("K", c.present, &option, &flag, sizeof flag), 1);
        EXPECT_EQ(integer, c.integer) << value;
        EXPECT_EQ(decimal, c.decimal) << value;
        EXPECT_EQ(flag, 1 - c.present);
    }
}

TEST(TicketReader, TextOfEachGetter)
{
    const struct {
        const char *value;
        const char *texts[std::size(textGetters)]; // in the order of textGetters
    } cases[] = {
        {"é日\\", {"\x93\xFA\\", "\x93\xFA\\", "é日\\", "\x93\xFA\\", "é日\\", "(é日\\)", "N\x93\xFA\\", "\x93\xFA\\"}},
        {"/65/66", {"/65/66", "AB", "AB", "AB", "AB", "(AB)", "N/65/66", "AB"}},
        {"", {"", "", "", "", "", "()", "N", ""}},
        {"a\xFF", {"", "", "", "", "", "", "", ""}},
        {"/195", {"/195", "", "", "", "", "", "N/195", ""}},
        {"1", {"1", "1", "1", "1", "1", "(1)", "N1", "1"}},
    };
    for (size_t i = 0; i < std::size(textGetters); i++) {
        const bool givesLength = i == 3 || i == 4, givesPresence = i < 6;
        for (const auto &c : cases) {
            const TextTicket ticket = Read(textGetters[i], c.value);
            EXPECT_EQ(ticket.text, c.texts[i]) << c.value << " by getter " << i;
            EXPECT_EQ(ticket.result, givesLength ? static_cast<int32_t>(strlen(c.texts[i])) : 1) << i;
        }
        const TextTicket absent = Read(textGetters[i], std::vector<cups_option_t>(), 64);
        EXPECT_EQ(absent.text, "");
        EXPECT_EQ(absent.result, givesPresence ? 0 : 1) << i;
    }
}

TEST(TicketReader, ValuesAreCutAtTheWorkBufferAndAtTheField)
{
    const std::string ascii(2000, 'a');
    EXPECT_EQ(Read(GetTicketString, ascii, 3000).text.size(), 2000u);
    EXPECT_EQ(Read(GetTicketStringConvertedToPrtLang, ascii, 3000).text.size(), 1023u);
    EXPECT_EQ(Read(GetNumberUpTicketString, ascii, 3000).text.size(), 1023u);
    EXPECT_EQ(Read(GetTicketStringConvertedToPrtLang, ascii, 33).text.size(), 32u);
    EXPECT_EQ(Read(GetTicketStringConvertedToPrtLangForUTF8, std::string(1021, 'a') + "é", 3000).text.size(), 1023u);
    EXPECT_EQ(Read(GetTicketStringConvertedToPrtLangForUTF8, std::string(1022, 'a') + "é", 3000).text, "");
}

TEST(TicketReader, MalformedValuesStayWithinTheField)
{
    const std::string values[] = {"",
                                  "/",
                                  "//",
                                  "/0",
                                  "\xFF",
                                  "\xE3\x81",
                                  "日本\xE3",
                                  "/227/129",
                                  "/-1/-2",
                                  "/99999999999999999999",
                                  "é😀\u202E",
                                  "/" + std::string(1500, '/'),
                                  std::string(1500, '9'),
                                  "%s%n%d",
                                  "a\nb\rc\"\x1B",
                                  "-2147483649"};
    for (const auto &value : values) {
        for (const TicketGetter getter : textGetters) {
            for (const int32_t size : {-1, 0, 1, 2, 3, 10, 255}) {
                const TextTicket ticket = Read(getter, value, size);
                EXPECT_LE(static_cast<int32_t>(ticket.text.size()), std::max(size - 1, 0));
            }
        }
    }
}

TEST(TicketReader, PagesPerSheetOfTheLayout)
{
    const struct {
        const char *rows, *columns, *count, *withLetter;
    } cases[] = {
        {"", "", "", ""},          {"2", "", "", ""},       {"1", "1", "1", "1"},
        {"2", "2", "4", "N4"},     {"4", "4", "16", "N16"}, {"9", "11", "99", "N99"},
        {"10", "10", "00", "N00"}, {"-2", "2", "", ""},     {"65536", "65536", "", ""},
    };
    for (const auto &c : cases) {
        snprintf(StdLayoutRowInfo, sizeof StdLayoutRowInfo, "%s", c.rows);
        snprintf(StdLayoutColumnInfo, sizeof StdLayoutColumnInfo, "%s", c.columns);
        EXPECT_EQ(Read(GetNumberUpTicketStringForComment, std::vector<cups_option_t>(), 10).text, c.count) << c.rows;
        EXPECT_EQ(Read(GetNumberUpTicketString, std::vector<cups_option_t>(), 10).text, c.withLetter) << c.rows;
        EXPECT_EQ(Read(GetNumberUpTicketString, "6").text, "N6"); // the option goes before the layout
    }
    StdLayoutRowInfo[0] = StdLayoutColumnInfo[0] = '\0';
}

TEST(TicketReader, TablesShareTheJobsOptions)
{
    int32_t first = 0, last = 0, absent = 0;
    char text[4];
    const ticketData table[] = {
        {"com.x.First", &first, sizeof first, GetTicketInteger},
        {"com.x.Last", &last, sizeof last, GetTicketInteger},
        {"com.x.Text", text, sizeof text, GetTicketStringConvertedToPrtLang},
        {"com.x.Absent", &absent, sizeof absent, GetTicketInteger},
    };
    const char *argv[] = {"filter", "1", "u", "t", "1", "COM.X.FIRST=1 com.x.Last=2 com.x.Last=3 com.x.Text='a b c'",
                          nullptr};
    EXPECT_EQ(GetTicketFromArray(argv, table, 0), 1);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(GetTicketFromArray(argv, table, std::size(table)), 1);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(last, 3);
    EXPECT_STREQ(text, "a b");
    EXPECT_EQ(absent, -1);

    const cups_option_t *shared = OptionsOfJob(argv).list;
    EXPECT_EQ(OptionsOfJob(argv).list, shared);
    argv[5] = "com.x.First=8";
    EXPECT_EQ(GetTicketFromArray(argv, table, 2), 1);
    EXPECT_EQ(first, 8);
    EXPECT_EQ(last, -1);
    argv[5] = nullptr;
    EXPECT_EQ(OptionsOfJob(argv).count, 0);
}
