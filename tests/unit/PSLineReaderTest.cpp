// The block reader against a plain byte-wise reading of the same rules.
#include "PSLineReader.h"

#include "OutputSink.h"
#include "Rows.h"

#include <algorithm>
#include <random>
#include <thread>
#include <unistd.h>

static const PSWatch watch = {"%%BeginFeature:", {"TSCR", "TCPR"}};

// A reading: what was written, lines of interest between < and >, then a NUL and the bytes after the last line end.
static std::string ReadByteWise(const std::string &document)
{
    std::string text, line;
    for (const char byte : document) {
        if (byte == '\r' || byte == '\n') {
            const bool ofInterest =
                line.find_first_of("%besu") == 0 || line.find("TSCR") != line.npos || line.find("TCPR") != line.npos;
            text += (ofInterest ? '<' + line + '>' : line) + byte;
            line.clear();
        } else if ((line += byte).size() == 8065) {
            text += line;
            line.clear();
        }
    }
    return text + '\0' + line;
}

// Offers the document in pieces of the given size, as a pipe does, and lets the first blocks through unexamined.
static std::string ReadInBlocks(const std::string &document, size_t piece, unsigned long skipped)
{
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    std::thread writer([&] {
        for (size_t at = 0; at < document.size(); at += piece)
            EXPECT_GT(write(ends[1], document.data() + at, std::min(piece, document.size() - at)), 0);
        close(ends[1]);
    });
    char *text = nullptr;
    size_t size = 0;
    FILE *out = open_memstream(&text, &size);
    PSLineReader reader;
    OpenPSLineReader(reader, ends[0], out, QBfwrite, &watch);
    while (skipped > 0 && SkipPSBlock(reader))
        skipped--;
    while (NextPSLine(reader)) {
        WriteBeforePSLine(reader);
        const std::string line = '<' + std::string(CurrentPSLine(reader)) + '>';
        fwrite(line.data(), 1, line.size(), out);
        reader.written = reader.lineEnd;
    }
    fclose(out);
    writer.join();
    close(ends[0]);
    const std::string written(text, size);
    free(text);
    return written + '\0' + std::string(CurrentPSLine(reader));
}

// The reading with the lines of interest that the other one has, which are its last.
static std::string KnowingNoMoreThan(const std::string &other, std::string reading)
{
    for (const char bracket : {'<', '>'})
        while (std::ranges::count(reading, bracket) > std::ranges::count(other, bracket))
            reading.erase(reading.find(bracket), 1);
    return reading;
}

TEST(PSLineReader, ReadsRandomDocumentsAsAByteWiseReaderWould)
{
    const std::vector<Row> pieces = Rows("document-pieces");
    const size_t runs[] = {1, 70, 8063, 8064, 8065, 8066, 8067, 16130, 20000, 65536};
    const size_t offers[] = {1000000, 65536, 4096, 8065, 509};
    std::mt19937 random(20261122);
    for (int i = 0; i < 400; i++) {
        std::string document;
        for (unsigned long count = random() % 60; count > 0; count--)
            if (random() % 8 == 0)
                document.append(runs[random() % std::size(runs)], "ax%"[random() % 3]);
            else
                document += pieces[random() % pieces.size()].given[0];
        const size_t offer = offers[random() % std::size(offers)];
        const std::string reading = ReadByteWise(document), late = ReadInBlocks(document, offer, 1 + random() % 3);
        ASSERT_TRUE(ReadInBlocks(document, offer, 0) == reading) << i;
        ASSERT_TRUE(late == KnowingNoMoreThan(late, reading)) << i;
    }
}
