// Writes docs/pipe-bodies.md and docs/web-bodies.md: for every key of the pipe, and for every question to the
// web service, the samples of its bodies, as the entities write them. The build runs it and a test compares,
// so the pages cannot go stale.

#include "EntityCatalogue.h"
#include "platform/link/PipeKey.h"

#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

/// One sample with its direction.
std::string Paragraph(const Json::Value& sample) {
    std::string text = sample["direction"] == "to" ? "To the service" : "From the service";
    if (sample.isMember("when"))
        text += ", " + sample["when"].asString();
    if (sample.isMember("entity")) {
        const BodyEntity& entity = FindEntity(sample["entity"].asString());
        return text + ": `" + entity.name + "`\n\n```json\n" +
               Rewrite(entity, sample["body"].toStyledString()) + "```\n\n";
    }
    if (sample.isMember("json"))
        return text + ":\n\n```json\n" + sample["json"].toStyledString() + "```\n\n";
    if (sample.isMember("text"))
        return text + ": plain text: " + sample["text"].asString() + "\n\n```\n" + sample["body"].asString() +
               "\n```\n\n";
    return text + ": no body\n\n";
}

/// The section of one key. Throws std::runtime_error when it has no sample.
std::string Section(const std::string& key, int number) {
    std::string paragraphs;
    for (const Json::Value& sample : Samples()) {
        if (sample["key"] == key)
            paragraphs += Paragraph(sample);
    }
    if (paragraphs.empty())
        throw std::runtime_error("samples.json has none for key " + key);
    return "## " + std::to_string(number) + " `" + key + "`\n\n" + paragraphs;
}

std::string Heading(const std::string& title, const std::string& whatFor, const std::string& file) {
    return "# " + title + "\n\n" + whatFor +
           " and a sample body. Headers in `src/entity`\n"
           "tell what the fields mean.\n\n"
           "This page is written by `entity_samples` from `tools/entity-samples/samples.json`. After a "
           "change,\n"
           "copy `tests/entity/" +
           file + "` of the build folder over it.\n\n";
}

std::string PipePage() {
    std::string page =
        Heading("Bodies on the pipe", "For every key the entity that travels under it", "pipe-bodies.md");
#define RYX_SECTION(name, number) page += Section(#name, number);
    RYX_PIPE_KEYS(RYX_SECTION)
#undef RYX_SECTION
    page.pop_back();
    return page;
}

std::string WebPage() {
    std::string page =
        Heading("Bodies of the web service", "For every question and answer the entity", "web-bodies.md");
    std::string last;
    for (const Json::Value& sample : Samples()) {
        const std::string question = sample["web"].asString();
        if (question.empty())
            continue;
        if (question != last)
            page += "## " + question + "\n\n";
        page += Paragraph(sample);
        last = question;
    }
    page.pop_back();
    return page;
}

bool Write(const std::string& page, const char* path) {
    std::ofstream file(path, std::ios::binary);
    file << page;
    if (!file.flush())
        std::cerr << "cannot write " << path << '\n';
    return file.good();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: entity_samples PIPE_PAGE WEB_PAGE\n";
        return 2;
    }
    return Write(PipePage(), argv[1]) && Write(WebPage(), argv[2]) ? 0 : 1;
}
