#include "export/results_file.h"

#include "base/text/decode.h"
#include "base/text/numbers.h"
#include "ui/language/cNamesClass.h"

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

/// A number below its heading; so far it stands behind the end of the column before.
std::string Number(const std::string& heading, std::int32_t number, int indentBefore) {
    return Repeated(' ', Length(heading) - kHeadingWidth + indentBefore) +
           RightAlign(std::to_string(number), kNumberWidth);
}

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

ResultsReport::ResultsReport(const modExport& exports) : exports_(exports) {
    const cNamesClass& names = *exports.Core().Names;
    const bool appended = exports.Core().ExportMode == kAppendToFile;
    const int width = LabelWidth(names);
    title_ = DotLeader(appended ? names.FrameMainAppended() : names.FrameMainExported(), width);
    for (int type = kFirstType; type <= kLastType; ++type) {
        typeLabels_[static_cast<std::size_t>(type)] = DotLeader(TypeLabel(names, type), width);
    }
    totalsLabel_ = DotLeader(names.LabelTotalFilesAndCameras(), width);
    files_ = ColumnHeading(names.LabelFilesProcessed(), kHeadingWidth);
    cameras_ =
        ColumnHeading(appended ? names.LabelAppendedCameras() : names.LabelExportedCameras(), kHeadingWidth);
    skipped_ = ColumnHeading(names.LabelSkippedCameras(), kHeadingWidth);
}

void ResultsReport::Write(const std::function<void(const std::string&)>& writeLine) const {
    const std::string heading = title_ + files_ + cameras_ + skipped_;
    const std::string rule = Repeated('-', Length(heading));
    for (const std::string& line : {std::string(), rule, heading, rule}) writeLine(line);

    std::int32_t files = 0;
    std::int32_t cameras = 0;
    std::int32_t skipped = 0;
    for (std::size_t type = kFirstType; type <= kLastType; ++type) {
        writeLine(typeLabels_[type] + Numbers(exports_.FilesProcessed[type], exports_.CamerasExported[type],
                                              exports_.CamerasSkipped[type]));
        files = text::CheckedAdd(files, exports_.FilesProcessed[type]);
        cameras = text::CheckedAdd(cameras, exports_.CamerasExported[type]);
        skipped = text::CheckedAdd(skipped, exports_.CamerasSkipped[type]);
    }
    writeLine(rule);
    writeLine(totalsLabel_ + Numbers(files, cameras, skipped));
    writeLine(rule);
}

std::string ResultsReport::Numbers(std::int32_t files, std::int32_t cameras, std::int32_t skipped) const {
    return Number(files_, files, 0) + Number(cameras_, cameras, kNumberIndent) +
           Number(skipped_, skipped, kNumberIndent);
}

}  // namespace halvenmoor
