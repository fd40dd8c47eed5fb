#include "import/import_task.h"

#include <string_view>

namespace halvenmoor {

namespace {

std::string_view LayoutRemark(int sourceStructure) {
    switch (sourceStructure) {
        case 2:
            return " (Extended with DirType and Direction).";
        case 3:
            return " (Extended with Direction and DirType).";
        default:
            return "";
    }
}

}  // namespace

bool IsHidden(std::string_view name) {
    return name.starts_with('.');
}

std::vector<std::string> SourceFiles(const ImportTask& task) {
    const auto files = task.services.fileSystem.CreateFileSystemObject();
    if (!files->FolderExists(task.sourceFolder) || !files->FolderExists(task.targetFolder)) return {};
    std::vector<std::string> names = files->GetFolder(task.sourceFolder)->Files();
    std::erase_if(names, IsHidden);
    return names;
}

void WriteCameraFileHeader(platform::TextWriter& file, int sourceStructure) {
    file.WriteLine({"; Generic Ascii file created by Halvenmoor.", LayoutRemark(sourceStructure)});
    file.WriteLine("");
}

}  // namespace halvenmoor
