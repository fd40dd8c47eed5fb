// A camera file to target lines, compared with a slow export. The first byte chooses the order of the extra
// fields.

#include "base/text/compare.h"
#include "export/camera_line.h"
#include "export/export_run.h"
#include "fuzz/memory_platform.h"
#include "fuzz/property.h"
#include "fuzz/slow_camera_line.h"
#include "src/program.h"

using namespace halvenmoor;
using fuzz::Require;

namespace {

const std::vector<std::pair<int, std::string>> kNamePatterns{
    {1, "fix"}, {2, "Stra\xC3\x9F"}, {3, "\xC4MPEL"}, {4, "x"}, {5, "mobil"}};

struct MemoryExport : fuzz::MemoryPlatform {
    MemoryExport() {
        memory.AddFolder("/p/demo/asc_demo");
        program.Start();
    }

    void UseStructure(int structure) {
        if (structure == structureInUse) return;
        structureInUse = structure;
        memory.Put("/p/Settings.ini",
                   "[Fixed]\nfix\n[RedSpeed]\nStra\xC3\x9F\n[RedLight]\n\xC4MPEL\n[Section]\nx\n[Mobile]\n"
                   "mobil\n[Settings]\nSourceStructure=" +
                       std::to_string(structure) + "\n");
        program.Core().ReloadWorkspace();
    }

    Program program{services, toolkit};
    int structureInUse = 0;
};

/// What an export leaves.
struct Exported {
    std::string target = "X,Y,TYPE,SPEED,DirType,Direction\r\n";
    TypeTable<std::int32_t> cameras{};
    TypeTable<std::int32_t> skipped{};
};

int TypeOf(const std::string& name, int typeOfList) {
    const text::CodePage& page = text::WindowsCodePage(1252);
    const std::string key = text::FoldedKey(name, page);
    for (const auto& [type, pattern] : kNamePatterns) {
        if (key.find(text::FoldedKey(pattern, page)) != std::string::npos) return type;
    }
    return typeOfList;
}

Exported SlowExport(std::string_view file, int typeOfList, int structure) {
    Exported exported;
    for (const std::string& read : fuzz::Lines(file)) {
        const std::string line = fuzz::Trimmed(read);
        const auto [fields, isSound] = fuzz::SlowSplit(fuzz::IsComment(line) ? "" : line);
        if (!isSound || (fields.size() != 3 && fields.size() != 5)) {
            if (fields.size() >= 2) ++exported.skipped[static_cast<std::size_t>(typeOfList)];
            continue;
        }
        const int type = TypeOf(fields[2], typeOfList);
        if (IsValidPosition(fields[0], fields[1])) {
            const bool isExtended = fields.size() == 5 && structure != 1;
            const std::string extra = !isExtended      ? "0,0"
                                      : structure == 2 ? fields[3] + "," + fields[4]
                                                       : fields[4] + "," + fields[3];
            exported.target +=
                fields[0] + "," + fields[1] + "," + std::to_string(type) + ",50," + extra + "\r\n";
            ++exported.cameras[static_cast<std::size_t>(type)];
        } else if (!IsZeroPosition(fields[0], fields[1])) {
            ++exported.skipped[static_cast<std::size_t>(type)];
        }
    }
    return exported;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static MemoryExport platform;
    if (size == 0) return 0;
    const int structure = 1 + data[0] % 3;
    const std::string_view file = fuzz::Text(data, size).substr(1);
    platform.UseStructure(structure);
    platform.memory.Put("/p/a.asc", file);

    modExport& exports = platform.program.Exports();
    exports.FilesProcessed = exports.CamerasExported = exports.CamerasSkipped = {};
    ExportRun run(exports, "/p/target.txt");
    run.Run({"/p/a.asc", 4, "50"});
    run.Finish();
    platform.memory.ForgetCalls();

    const Exported slow = SlowExport(file, 4, structure);
    Require(platform.memory.Text("/p/target.txt") == slow.target, "the target is the one of the slow export");
    Require(exports.CamerasExported == slow.cameras, "what is exported is counted");
    Require(exports.CamerasSkipped == slow.skipped, "what is skipped is counted");
    return 0;
}
