// The block reader against a plain byte-wise reading of the same rules.

#include "PSLineReader.h"
#include "OutputSink.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <unistd.h>

namespace
{

struct Reading {
    std::string text; // what was written, with each line of interest between < and >
    std::string tail; // bytes behind the last line end
};

const PSWatch watch = {"%%BeginFeature:", {"TSCR", "TCPR"}};
const char *const markerTexts[] = {
    "%%BeginProlog", "%%EndProlog", "%%EndSetup", "userdict/setpagedevice{pop}bind put", "bp", "%%EndPageSetup", "ep",
    "endp",          "showpage"};

bool IsOfInterest(const std::string &line)
{
    for (const char *text : markerTexts)
        if (line == text)
            return true;
    return line.starts_with(watch.prefix) || line.find("TSCR") != std::string::npos ||
           line.find("TCPR") != std::string::npos;
}

Reading ReadByteWise(const std::string &document)
{
    Reading reading;
    std::string line;
    for (char byte : document) {
        if (byte == '\r' || byte == '\n') {
            reading.text += IsOfInterest(line) ? "<" + line + ">" : line;
            reading.text += byte;
            line.clear();
        } else {
            line += byte;
            if (line.size() == 8065) {
                reading.text += line;
                line.clear();
            }
        }
    }
    reading.tail = line;
    return reading;
}

// Offers the document in pieces of the given size, as a pipe does.
Reading ReadInBlocks(const std::string &document, size_t piece)
{
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t writer = fork();
    if (writer == 0) {
        for (size_t at = 0; at < document.size(); at += piece)
            if (write(ends[1], document.data() + at, std::min(piece, document.size() - at)) < 0)
                _exit(1);
        _exit(0);
    }
    close(ends[1]);

    char *text = nullptr;
    size_t size = 0;
    FILE *out = open_memstream(&text, &size);
    PSLineReader reader;
    OpenPSLineReader(reader, ends[0], out, QBfwrite, &watch);
    while (NextPSLine(reader)) {
        WriteBeforePSLine(reader);
        const std::string line(CurrentPSLine(reader));
        fputc('<', out);
        fwrite(line.data(), 1, line.size(), out);
        fputc('>', out);
        reader.written = reader.lineEnd;
    }
    fclose(out);
    close(ends[0]);
    Reading reading = {{text, size}, std::string(CurrentPSLine(reader))};
    free(text);
    return reading;
}

std::string RandomDocument(std::mt19937 &random)
{
    static const std::string pieces[] = {"\n",
                                         "\r",
                                         "\r\n",
                                         "ep",
                                         "ep\n",
                                         "\nep\n",
                                         "endp\r",
                                         "\rshowpage\r\n",
                                         " ep\n",
                                         "%%EndProlog\n",
                                         "%%BeginFeature: *A B\n",
                                         "xTSCR",
                                         "TCPR\n",
                                         "TSC",
                                         "R",
                                         std::string("e\0p\n", 4),
                                         std::string("ep\0\n", 4),
                                         "\x04",
                                         "text of a line\n"};
    static const size_t runs[] = {1, 70, 8063, 8064, 8065, 8066, 8067, 16130, 20000, 65536};
    std::string document;
    for (unsigned long count = random() % 60; count > 0; count--) {
        if (random() % 8 == 0)
            document.append(runs[random() % std::size(runs)], "ax%"[random() % 3]);
        else
            document += pieces[random() % std::size(pieces)];
    }
    return document;
}

} // namespace

TEST(PSLineReader, ReadsAsAByteWiseReaderWould)
{
    std::mt19937 random(20261122);
    static const size_t pieces[] = {1000000, 65536, 4096, 8065, 509};
    for (int i = 0; i < 400; i++) {
        const std::string document = RandomDocument(random);
        const Reading expected = ReadByteWise(document);
        const Reading reading = ReadInBlocks(document, pieces[random() % std::size(pieces)]);
        ASSERT_TRUE(reading.text == expected.text) << "document " << i;
        ASSERT_TRUE(reading.tail == expected.tail) << "document " << i;
    }
}
