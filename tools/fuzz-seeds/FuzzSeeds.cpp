// Writes the seed corpora and dictionaries of the fuzz targets into a folder:
//   FOLDER/<family>/...     bodies of the catalogue's entities, behind the byte that picks the entity
//   FOLDER/<family>.dict    the family's keys and the signs of JSON
//   FOLDER/frame/...        such bodies as frames

#include "EntityCatalogue.h"
#include "platform/link/RyxPackage.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace {

void WriteFile(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    if (!out.flush())
        throw std::runtime_error("cannot write " + file.string());
}

std::string FilledText(const BodyEntity& entity) {
    return FilledBody().Body(entity).toStyledString();
}

/// The keys that entities of one family read, and the signs of JSON.
std::string Dictionary(const std::string& family) {
    std::set<std::string> keys;
    for (const BodyEntity& entity : Entities()) {
        for (const BodyKey& key : entity.keys) {
            if (key.isRead && entity.family == family)
                keys.insert(key.name);
        }
    }
    std::string lines;
    for (const std::string& key : keys)
        lines += R"("\")" + key + "\\\":\"\n";
    for (const char* sign : {"{", "}", "[", "]", ",", ":", "null", "true", "false", "\\\"\\\"", "\\\\ud800",
                             "-1", "1e308", "9223372036854775807", "18446744073709551615", "//", "/*", "{}"})
        lines += '"' + std::string(sign) + "\"\n";
    return lines;
}

void WriteBodies(const fs::path& folder) {
    std::map<std::string, char> counts; // By family.
    for (const BodyEntity& entity : Entities()) {
        const std::string pick(1, counts[entity.family]++);
        const fs::path seeds = folder / entity.family;
        WriteFile(seeds / (entity.name + "-default"), pick + entity.make()->WriteToString());
        WriteFile(seeds / (entity.name + "-filled"), pick + FilledText(entity));
    }
    const std::string deep(3000, '[');
    for (const auto& family : counts) {
        WriteFile(folder / (family.first + ".dict"), Dictionary(family.first));
        WriteFile(folder / family.first / "deep", '\0' + deep);
        WriteFile(folder / family.first / "deep-closed", '\0' + deep + std::string(deep.size(), ']'));
    }
}

void WriteFrames(const fs::path& folder) {
    const std::string status = FilledText(FindEntity("IotStatusEntity"));
    const std::string rules = FilledText(FindEntity("SyncPopupsParams"));
    const std::string stream = RyxPackage::PackageData(PipeKey::ContextRequest, "") +
                               RyxPackage::PackageData(PipeKey::IotStatusNotify, status) +
                               RyxPackage::PackageData(PipeKey::PopupPolicy, rules);
    WriteFile(folder / "frame" / "bytewise", '\x01' + stream);
    WriteFile(folder / "frame" / "whole", '\xff' + stream);
    WriteFile(folder / "frame" / "cut", '\x07' + stream.substr(0, stream.size() / 2));
    WriteFile(folder / "frame" / "too-long", '\x08' + stream + "\xff\xff\xff\xff\x02" + std::string(3, '\0'));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: fuzz_seeds FOLDER\n";
        return 2;
    }
    WriteBodies(argv[1]);
    WriteFrames(argv[1]);
    return 0;
}
