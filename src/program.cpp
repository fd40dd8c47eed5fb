#include "program.h"

#include "base/text/compare.h"
#include "catalogue/frmMain.h"

#include <memory>
#include <string>

namespace halvenmoor {

namespace {

forms::SortKey ListOrder(const platform::Locale& locale) {
    return [&locale](std::string_view item) { return text::CollationKey(item, locale.CodePage()); };
}

}  // namespace

Program::Program(const platform::Platform& platform, forms::Toolkit& toolkit)
    : desktop_(toolkit, ListOrder(platform.locale)), core_(platform, desktop_) {
}

void Program::Start() {
    core_.Main([this] {
        auto window = std::make_unique<frmMain>(core_);
        exports_.emplace(*window);
        exports_->AttachButtons();
        imports_.emplace(*window);
        imports_->AttachButtons();
        return window;
    });
}

frmMain& Program::MainForm() {
    return static_cast<frmMain&>(*core_.MainForm);
}

}  // namespace halvenmoor
