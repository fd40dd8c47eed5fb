// The import of a TXT source. The first byte chooses the order of the extra fields.

#include "base/text/compare.h"
#include "fuzz/memory_platform.h"
#include "fuzz/property.h"
#include "fuzz/slow_camera_line.h"
#include "import/txt_import.h"

#include <algorithm>
#include <set>

using namespace halvenmoor;
using fuzz::Require;

namespace {

constexpr std::array<std::string_view, 6> kTypeWords{"",         "Fixed",   "RedSpeed",
                                                     "RedLight", "Section", "Mobile"};

/// Lines of camera files, by type word.
using Records = std::multiset<std::pair<std::string, std::string>>;

struct Expected {
    Records records;
    int badLines = 0;
    /// Records that an export will take.
    int exported = 0;
};

std::vector<std::string> Fields(const std::string& line) {
    std::vector<std::string> fields;
    std::string_view rest = line;
    if (rest.empty()) return fields;
    for (auto commas = std::count(line.begin(), line.end(), ','); commas >= 0; --commas) {
        fields.push_back(fuzz::Trimmed(std::string(fuzz::TakeUpTo(rest, ','))));
    }
    return fields;
}

void AddRecord(Expected& expected, std::vector<std::string> fields, int structure) {
    const std::string word(kTypeWords[static_cast<std::size_t>(fields[2][0] - '0')]);
    fields.resize(6, "0");
    if (fields[4] == "0") fields[5] = "0";
    std::string line = fields[0] + ", " + fields[1] + ", \"" + word + " Camera\"";
    if (structure == 2) line += ", " + fields[4] + ", " + fields[5];
    if (structure == 3) line += ", " + fields[5] + ", " + fields[4];
    const bool isQuoted = structure != 1 && (fields[4] + fields[5]).find('"') != std::string::npos;
    if (IsValidPosition(fields[0], fields[1]) && !isQuoted) ++expected.exported;
    expected.records.emplace(word, line);
}

Expected SlowImport(std::string_view source, int structure) {
    Expected expected;
    for (const std::string& line : fuzz::Lines(source)) {
        const std::vector<std::string> fields = Fields(fuzz::Trimmed(line));
        if (fields.size() != 4 && fields.size() != 6) continue;
        if (fields[2].size() == 1 && fields[2][0] >= '1' && fields[2][0] <= '5') {
            AddRecord(expected, fields, structure);
        } else if (!text::EqualIgnoringAsciiCase(fields[2], "TYPE")) {
            ++expected.badLines;
        }
    }
    return expected;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const int structure = 1 + data[0] % 3;
    fuzz::MemoryImport platform(structure);
    const std::string_view source = fuzz::Text(data, size).substr(1);
    platform.memory.Put("/source/a.txt", source);
    TxtImport import(platform.task);
    import.ReadTxtFiles();
    import.CollectAllSpeeds();
    import.WriteAllTypes();

    const Expected expected = SlowImport(source, structure);
    Records written;
    int exported = 0;
    for (const auto& [path, bytes] : platform.memory.Everything()) {
        if (!path.starts_with("/target/")) continue;
        const std::vector<std::string> lines = fuzz::Lines(bytes);
        Require(lines.size() > 2 && lines[1].empty(), "a camera file has two lines and then records");
        const std::string word = path.substr(8, path.find('_') - 8);
        for (std::size_t i = 2; i < lines.size(); ++i) {
            written.emplace(word, lines[i]);
            if (fuzz::IsExported(lines[i])) ++exported;
        }
    }
    Require(import.BadLines() == expected.badLines, "bad lines are counted");
    Require(written == expected.records, "each record is written once, as it stood in the source");
    Require(exported >= expected.exported, "each record with a valid position is read back");
    return 0;
}
