// Writes docs/pipe-bodies.md: for every key of the pipe the samples of its bodies, as the entities write
// them. The build runs it and a test compares, so the page cannot go stale.

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

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: entity_samples FILE\n";
        return 2;
    }
    std::string page =
        "# Bodies on the pipe\n\n"
        "For every key the entity that travels under it and a sample body. Headers in `src/entity`\n"
        "tell what the fields mean.\n\n"
        "This page is written by `entity_samples` from `tools/entity-samples/samples.json`. After a change,\n"
        "copy `tests/entity/pipe-bodies.md` of the build folder over it.\n\n";
#define RYX_SECTION(name, number) page += Section(#name, number);
    RYX_PIPE_KEYS(RYX_SECTION)
#undef RYX_SECTION
    page.pop_back();

    std::ofstream file(argv[1], std::ios::binary);
    file << page;
    if (!file.flush()) {
        std::cerr << "cannot write " << argv[1] << '\n';
        return 1;
    }
    return 0;
}
