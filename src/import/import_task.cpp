#include "import/import_task.h"

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

std::vector<std::string> SourceFiles(const ImportTask& task) {
    const auto files = task.services.fileSystem.CreateFileSystemObject();
    if (!files->FolderExists(task.sourceFolder) || !files->FolderExists(task.targetFolder)) return {};
    return files->GetFolder(task.sourceFolder)->Files();
}

std::unique_ptr<platform::TextWriter> CreateCameraFile(platform::FileSystemObject& files,
                                                       std::string_view path, int sourceStructure) {
    std::unique_ptr<platform::TextWriter> file = files.CreateTextFile(path);
    file->WriteLine(
        std::string("; Generic Ascii file created by Halvenmoor.").append(LayoutRemark(sourceStructure)));
    file->WriteLine("");
    return file;
}

}  // namespace halvenmoor
