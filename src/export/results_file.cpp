#include "export/results_file.h"

#include "core/text/decode.h"
#include "core/text/numbers.h"
#include "ui/cNamesClass.h"

#include <algorithm>

namespace halvenmoor {

namespace {

constexpr int kHeadingWidth = 12;
constexpr int kNumberWidth = 8;
/// Numbers end this far before the end of their heading.
constexpr int kNumberIndent = 4;

int Length(std::string_view text) {
    return static_cast<int>(text::CharacterCount(text));
}

std::string Repeated(char character, int count) {
    return std::string(static_cast<std::size_t>(std::max(count, 0)), character);
}

std::string TypeLabel(const cNamesClass& names, int type) {
    return names.LabelSpeedCameraType() + " " + std::to_string(type) + " " + names.LabelTypeDescription(type);
}

int LabelWidth(const cNamesClass& names) {
    int width = 0;
    for (int type = kFirstType; type <= kLastType; ++type)
        width = std::max(width, Length(TypeLabel(names, type)));
    for (const auto* text :
         {&names.FrameMainExported, &names.FrameMainAppended, &names.LabelTotalFilesAndCameras}) {
        width = std::max(width, Length((*text)()));
    }
    return text::CheckedInt16(width + 4);
}

/// The three headings; a number stands below each.
struct Columns {
    std::string files;
    std::string cameras;
    std::string skipped;

    std::string Numbers(std::int32_t fileCount, std::int32_t cameraCount, std::int32_t skippedCount) const {
        return Cell(files, fileCount, 0) + Cell(cameras, cameraCount, kNumberIndent) +
               Cell(skipped, skippedCount, kNumberIndent);
    }

private:
    static std::string Cell(const std::string& heading, std::int32_t number, int indentBefore) {
        return Repeated(' ', Length(heading) - kHeadingWidth + indentBefore) +
               RightAlign(std::to_string(number), kNumberWidth);
    }
};

}  // namespace

std::string DotLeader(std::string_view text, int width) {
    return std::string(text) + Repeated('.', width - 1 - Length(text)) + ":";
}

std::string ColumnHeading(std::string_view text, int width) {
    const int length = Length(text);
    return Repeated(' ', length < width ? width + 2 - length : 2) + std::string(text);
}

std::string RightAlign(std::string_view text, int width) {
    const int length = Length(text);
    if (length <= width) return Repeated(' ', width - length) + std::string(text);
    return std::string(text.substr(0, static_cast<std::size_t>(width)));
}

void WriteResults(const modExport& exports, const std::function<void(const std::string&)>& writeLine) {
    const cNamesClass& names = *exports.Core().Names;
    const bool appended = exports.Core().ExportMode == kAppendToFile;
    const int width = LabelWidth(names);
    const std::string title =
        DotLeader(appended ? names.FrameMainAppended() : names.FrameMainExported(), width);
    const Columns columns{
        ColumnHeading(names.LabelFilesProcessed(), kHeadingWidth),
        ColumnHeading(appended ? names.LabelAppendedCameras() : names.LabelExportedCameras(), kHeadingWidth),
        ColumnHeading(names.LabelSkippedCameras(), kHeadingWidth)};
    const std::string heading = title + columns.files + columns.cameras + columns.skipped;
    const std::string rule = Repeated('-', Length(heading));

    for (const std::string& line : {std::string(), rule, heading, rule}) writeLine(line);
    std::int32_t files = 0;
    std::int32_t cameras = 0;
    std::int32_t skipped = 0;
    for (int type = kFirstType; type <= kLastType; ++type) {
        const auto index = static_cast<std::size_t>(type);
        writeLine(DotLeader(TypeLabel(names, type), width) + columns.Numbers(exports.FilesProcessed[index],
                                                                             exports.CamerasExported[index],
                                                                             exports.CamerasSkipped[index]));
        files = text::CheckedAdd(files, exports.FilesProcessed[index]);
        cameras = text::CheckedAdd(cameras, exports.CamerasExported[index]);
        skipped = text::CheckedAdd(skipped, exports.CamerasSkipped[index]);
    }
    writeLine(rule);
    writeLine(DotLeader(names.LabelTotalFilesAndCameras(), width) + columns.Numbers(files, cameras, skipped));
    writeLine(rule);
}

}  // namespace halvenmoor
