#include "Job.h"

#include "JobSource.h"

#include <algorithm>

enum class Part { Before, Header, CopiedDocument, Document, Trailer, After };

// Reading in progress. held: a byte 4 that is no part of the document if nothing comes after it.
struct Reading {
    Job job;
    Part part = Part::Before;
    FILE *out = nullptr;
    bool held = false;
    bool atLineStart = true;
};

static void PutDocument(Reading &reading, std::string_view bytes)
{
    DocumentFacts &facts = reading.job.document;
    for (const char byte : bytes)
        facts.digest = (facts.digest ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    facts.bytes += bytes.size();
    if (reading.out)
        fwrite(bytes.data(), 1, bytes.size(), reading.out);
}

static void TakeDocument(Reading &reading, std::string_view piece)
{
    DocumentFacts &facts = reading.job.document;
    if (reading.held)
        PutDocument(reading, "\x04");
    reading.held = piece.ends_with('\x04');
    facts.ends = reading.held;
    if (reading.held)
        piece.remove_suffix(1);
    if (facts.bytes == 0)
        facts.isPostScript = piece.starts_with("%!");
    PutDocument(reading, piece);

    const bool lineEnds = piece.ends_with('\n') || piece.ends_with('\r');
    if (reading.atLineStart)
        LookAtLine(facts, piece.substr(0, piece.size() - lineEnds));
    reading.atLineStart = lineEnds;
}

static void TakeLine(Reading &reading, std::string_view line, uint64_t offset)
{
    Job &job = reading.job;
    const bool ended = line.ends_with('\n');
    line.remove_suffix(ended);
    if (ended && line.ends_with('\r'))
        line.remove_suffix(1);
    if (line.empty())
        return;
    if (line.starts_with("@PJL ENTER LANGUAGE")) {
        job.reentered = job.entered;
        job.entered = true;
        job.left = false;
        reading.part = job.isSpooledCopy ? Part::Trailer : Part::Document;
    } else if (line.starts_with("@PJL EOJ")) {
        job.ended = ended;
        reading.part = Part::After;
    }
    if (job.lines.size() < kMaxLines)
        job.lines.push_back({std::string(line), offset, ended});
    else
        job.linesLeftOut++;
}

// Returns false where the UEL is only some bytes of the document.
static bool LeavesDocument(std::string_view rest)
{
    return kPJLPrefix.starts_with(rest) || rest.starts_with(kPJLPrefix) || rest == "\n" || rest == "\r" ||
           rest == "\r\n";
}

static void TakePiece(Reading &reading, std::string_view piece, uint64_t offset)
{
    Job &job = reading.job;
    const bool isUEL = piece.starts_with(kUEL);
    std::string_view line = piece.substr(isUEL ? kUEL.size() : 0);
    const bool isPJL = line.starts_with(kPJLPrefix);

    if (reading.part == Part::Before) {
        if (!isUEL && !isPJL) {
            job.before += piece.substr(0, kPieceLimit - std::min(job.before.size(), kPieceLimit));
            job.bytesBefore += piece.size();
            return;
        }
        job.begins = isUEL;
        reading.part = Part::Header;
    }
    if (reading.part == Part::After) {
        job.anotherFollows |= isUEL && isPJL;
        job.bytesAfter += piece.size();
    } else if (reading.part == Part::Document && !(isUEL && LeavesDocument(line))) {
        if (isUEL && job.strayUEL == 0)
            job.strayUEL = offset;
        TakeDocument(reading, piece);
    } else if (reading.part == Part::CopiedDocument && !isPJL) {
        TakeDocument(reading, piece);
    } else if (reading.part == Part::Header && line.starts_with("%!")) {
        job.isSpooledCopy = true;
        reading.part = Part::CopiedDocument;
        TakeDocument(reading, line);
    } else {
        if (isUEL && job.entered) {
            job.left = true;
            reading.part = Part::Trailer;
        }
        TakeLine(reading, line, offset + (piece.size() - line.size()));
    }
}

Job ReadJob(FILE *file, FILE *document)
{
    JobSource source{file};
    Reading reading;
    reading.out = document;
    reading.job.document.digest = 0xcbf29ce484222325U;
    for (;;) {
        const uint64_t offset = source.offset;
        const std::string_view piece = NextPiece(source);
        if (piece.empty())
            break;
        TakePiece(reading, piece, offset);
    }
    reading.job.bytes = source.offset;
    return std::move(reading.job);
}

std::string WhyNoJob(const Job &job)
{
    if (job.bytes == 0)
        return "empty: nothing was captured";
    if (!job.lines.empty())
        return {};
    static const struct {
        const char *begin, *what;
    } kinds[] = {
        {"%!", "PostScript without a PJL header: not what the filter writes"},
        {"%PDF", "a PDF document, not a job"},
        {"\x1f\x8b", "compressed with gzip; unpack it first"},
        {"\xd4\xc3\xb2\xa1", "a network capture; take the printer's stream out of it first"},
        {"\n\r\r\n", "a network capture; take the printer's stream out of it first"},
    };
    for (const auto &[begin, what] : kinds)
        if (job.before.starts_with(begin))
            return what;
    return job.begins ? "a UEL and no line of PJL after it" : "no PJL in it: not a job";
}
