// Writes the seed corpora and dictionaries of the fuzz targets into a folder:
//   FOLDER/<family>/...     bodies that the entities write, behind the byte that picks the entity
//   FOLDER/<family>.dict    the family's keys and the signs of JSON
//   FOLDER/frame/...        such bodies as frames

#include "platform/link/RyxPackage.h"
#include "tests/entity/EntityCases.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>

namespace fs = std::filesystem;

namespace {

void WriteFile(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    if (!out.flush())
        throw std::runtime_error("cannot write " + file.string());
}

/// The keys under which an entity is read, as EntityCase lists them.
void CollectReadKeys(const EntityCase& entity, std::set<std::string>& keys) {
    std::istringstream words(entity.keys);
    for (std::string word; words >> word;) {
        if (word.front() != '>' && word.front() != '+')
            keys.insert(word.substr(word.front() == '<', word.find(':') - (word.front() == '<')));
    }
}

std::string Dictionary(const EntityFamily& family) {
    std::set<std::string> keys;
    CollectReadKeys(FindEntityCase("OperationCommandRequest"), keys);
    for (const EntityCase& entity : family.entities)
        CollectReadKeys(entity, keys);
    std::string lines;
    for (const std::string& key : keys)
        lines += R"("\")" + key + "\\\":\"\n";
    for (const char* sign : {"{", "}", "[", "]", ",", ":", "null", "true", "false", "\\\"\\\"", "\\\\ud800",
                             "-1", "1e308", "9223372036854775807", "18446744073709551615", "//", "/*", "{}"})
        lines += '"' + std::string(sign) + "\"\n";
    return lines;
}

void WriteFamily(const fs::path& folder, const EntityFamily& family) {
    WriteFile(folder / (family.name + ".dict"), Dictionary(family));
    char pick = 0;
    for (const EntityCase& entity : family.entities) {
        const std::string first(1, pick++);
        const fs::path seeds = folder / family.name;
        WriteFile(seeds / (std::string(entity.name) + "-default"), first + entity.writeDefault());
        WriteFile(seeds / (std::string(entity.name) + "-filled"), first + entity.writeFilled());
    }
    const std::string deep(3000, '[');
    WriteFile(folder / family.name / "deep", '\0' + deep);
    WriteFile(folder / family.name / "deep-closed", '\0' + deep + std::string(deep.size(), ']'));
}

void WriteFrames(const fs::path& folder) {
    const std::string status = FindEntityCase("IotStatusEntity").writeFilled();
    const std::string rules = FindEntityCase("SyncPopupsParams").writeFilled();
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
    for (const EntityFamily& family : EntityFamilies())
        WriteFamily(argv[1], family);
    WriteFrames(argv[1]);
    return 0;
}
