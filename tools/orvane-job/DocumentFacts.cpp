#include "DocumentFacts.h"

#include <algorithm>

// Documents can name any number; these are enough to see what a queue does.
static constexpr size_t kMaxFeatures = 256;
static constexpr size_t kMaxText = 256;
static constexpr size_t kMaxScreenLines = 16;

static std::string Cut(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return std::string(text.substr(0, std::min(text.find_last_not_of(" \t") + 1, kMaxText)));
}

static std::string Between(std::string_view text, std::string_view before, std::string_view after)
{
    const size_t found = text.find(before);
    if (found == text.npos)
        return {};
    text.remove_prefix(found + before.size());
    return Cut(text.substr(0, text.find(after)));
}

// Comments count where they first stand: what is embedded further on has its own.
static void TakeComment(std::string &field, std::string_view line, std::string_view name)
{
    if (field.empty() && line.starts_with(name) && !line.ends_with("(atend)"))
        field = Cut(line.substr(name.size()));
}

static void TakeFeature(DocumentFacts &facts, std::string_view line)
{
    constexpr std::string_view begin = "%%BeginFeature: *";
    if (!line.starts_with(begin) || facts.features.size() == kMaxFeatures)
        return;
    const std::string words = Cut(line.substr(begin.size()));
    const size_t space = std::min(words.find(' '), words.size());
    std::pair<std::string, std::string> feature(words.substr(0, space), Cut(std::string_view(words).substr(space)));
    if (std::ranges::find(facts.features, feature) == facts.features.end())
        facts.features.push_back(std::move(feature));
}

// The filter's own code, known by the names in it.
static void TakeInjection(DocumentFacts &facts, std::string_view line)
{
    if (line.ends_with(" store gsave"))
        facts.inWatermark = true;
    else if (line == "grestore")
        facts.inWatermark = false;
    else if (facts.inWatermark && line.ends_with(" show")) {
        facts.watermark = Cut(line.substr(0, line.size() - 5));
        facts.watermarksDrawn++;
    }
    if (line == "systemdict begin currentglobal mark{")
        facts.inEndPage = true;
    if (facts.inEndPage && line.starts_with('(') && !line.ends_with("findfont"))
        facts.watermark = Cut(line);
    for (const auto &[code, pages] :
         {std::pair("wqwDue true put}if", "every page"), {"wqwDue false put}if", "the first page"}}) {
        if (facts.inEndPage && line.find(code) != line.npos) {
            facts.watermarkPages = pages;
            facts.inEndPage = false;
        }
    }
    if (line.find("/setcoverseparator ") != line.npos)
        facts.separatorPages = Between(line, "/SeparatorPages[", "]");
    else if (line.ends_with("/setsignatureimageshift get exec"))
        facts.imageShift = Cut(line.substr(0, line.find('/')));
    else if (line.find("/setsignatureautoscale ") != line.npos)
        facts.autoScale = Between(line, "{get ", " ");
}

void LookAtLine(DocumentFacts &facts, std::string_view line)
{
    if (line == "ep")
        facts.pagesEnded++;
    if (line.starts_with("%%")) {
        TakeComment(facts.title, line, "%%Title:");
        TakeComment(facts.creator, line, "%%Creator:");
        TakeComment(facts.pagesDeclared, line, "%%Pages:");
        facts.pageComments += line.starts_with("%%Page:");
        TakeFeature(facts, line);
        return;
    }
    TakeInjection(facts, line);
    const auto holds = [line](const char *word) { return line.find(word) != line.npos; };
    if (facts.screenLines.size() < kMaxScreenLines && (holds("TSCR") || holds("TCPR")))
        facts.screenLines.emplace_back(line);
    for (const char *code : {"/Duplex true", "/Duplex false"})
        if (facts.duplexCode.empty() && holds(code))
            facts.duplexCode = code;
}

bool HasFeature(const DocumentFacts &facts, std::string_view keyword, std::string_view choice)
{
    return std::ranges::any_of(facts.features, [&](const auto &feature) {
        return feature.first == keyword && (choice.empty() || feature.second == choice);
    });
}

std::vector<std::pair<std::string, std::string>> FactsInWords(const DocumentFacts &facts)
{
    std::vector<std::pair<std::string, std::string>> words;
    const auto add = [&words](const char *name, std::string text) {
        if (!text.empty())
            words.emplace_back(name, std::move(text));
    };
    add("size", std::to_string(facts.bytes) + " bytes");
    add("title", facts.title);
    add("producer", facts.creator);
    add("pages", facts.pagesDeclared.empty() ? "not declared" : facts.pagesDeclared);
    add("page comments", std::to_string(facts.pageComments));
    add("pages ended by ep", std::to_string(facts.pagesEnded));
    if (!facts.watermarkPages.empty())
        add("watermark", facts.watermark + ", drawn by the printer on " + facts.watermarkPages);
    else if (facts.watermarksDrawn)
        add("watermark", facts.watermark + ", pages: " + std::to_string(facts.watermarksDrawn));
    add("separator pages", facts.separatorPages);
    add("image shift", facts.imageShift.empty() ? "" : facts.imageShift + " mm");
    add("auto-fit", facts.autoScale == "true" ? "on" : facts.autoScale == "false" ? "off" : facts.autoScale);
    for (const auto &[keyword, choice] : facts.features)
        add("feature", keyword + (choice.empty() ? "" : "=" + choice));
    return words;
}
