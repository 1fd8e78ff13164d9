// The line reader, the line builder and the text conversion on their own.

#include "CommandBuilder.h"
#include "CommandTable.h"
#include "OutputSink.h"
#include "PSLineReader.h"
#include "TextEncoding.h"

#include <benchmark/benchmark.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

static constexpr size_t kDocumentSize = 16 << 20;

// A document in memory whose lines have `length` bytes, with a page every thousand lines.
static int MakeDocument(size_t length)
{
    const int file = memfd_create("document", 0);
    std::string document;
    for (size_t line = 1; document.size() < kDocumentSize; line++)
        document += line % 1000 == 0 ? "ep\n" : std::string(length - 1, 'x') + "\n";
    if (write(file, document.data(), document.size()) < 0)
        abort();
    return file;
}

static void ReadLines(benchmark::State &state, const PSWatch *watch)
{
    const int file = MakeDocument(static_cast<size_t>(state.range(0)));
    FILE *null = fopen("/dev/null", "wb");
    for (auto _ : state) {
        lseek(file, 0, SEEK_SET);
        PSLineReader reader;
        OpenPSLineReader(reader, file, null, QBfwrite, watch);
        while (NextPSLine(reader))
            WriteThroughPSLine(reader);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * lseek(file, 0, SEEK_END));
    fclose(null);
    close(file);
}

static void PassThroughLines(benchmark::State &state)
{
    ReadLines(state, nullptr);
}
BENCHMARK(PassThroughLines)->Arg(20)->Arg(60)->Arg(1000)->Arg(20000);

static void SpooledLines(benchmark::State &state)
{
    static const PSWatch watch = {"%%BeginFeature:", {"TSCR", "TCPR"}};
    ReadLines(state, &watch);
}
BENCHMARK(SpooledLines)->Arg(20)->Arg(60)->Arg(1000)->Arg(20000);

static void BuildLine(benchmark::State &state)
{
    static constexpr const void *values[] = {Quote, "taro", Quote, CR, LF};
    constexpr CmdParaTable table = Values(values);
    char line[kCommandLineSize];
    for (auto _ : state) {
        BuildPrintComand("@PJL SET JOBATTR=%c@JOAU=%s%c%c%c", &table, line, sizeof line);
        benchmark::DoNotOptimize(line);
    }
}
BENCHMARK(BuildLine);

static void ConvertText(benchmark::State &state, int32_t (*convert)(const char *, void *, int32_t), const char *text)
{
    char converted[255];
    for (auto _ : state)
        benchmark::DoNotOptimize(convert(text, converted, sizeof converted));
}
BENCHMARK_CAPTURE(ConvertText, ascii_to_shift_jis, ConvertUTF8ToEncoding, "Quarterly report of the second district");
BENCHMARK_CAPTURE(ConvertText, japanese_to_shift_jis, ConvertUTF8ToEncoding, "第二地区の四半期報告書");
BENCHMARK_CAPTURE(ConvertText, japanese_to_utf8, ConvertUTF8ToEncodingForUTF8, "第二地区の四半期報告書");
