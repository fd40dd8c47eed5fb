#include "ui/cProgressBar.h"

#include "base/failure.h"
#include "base/text/numbers.h"

#include <algorithm>
#include <string>

namespace halvenmoor {

namespace {

std::int32_t Difference(std::int32_t a, std::int32_t b) {
    return text::CheckedInt32(static_cast<long long>(a) - b);
}

}  // namespace

void cProgressBar::SetPicBox(forms::PictureBox* box) {
    if (box == nullptr) return;
    box->SetBordered(false);
    picBox_ = box;
}

void cProgressBar::Draw() {
    forms::Canvas* const canvas = picBox_ != nullptr ? picBox_->GetCanvas() : nullptr;
    if (canvas == nullptr) return;
    DrawBar(*canvas, canvas->ClientRect());
    canvas->Refresh();
}

double cProgressBar::Ratio() const {
    const double whole = Difference(max_, min_);
    if (whole == 0) throw Failure(failure::DivisionByZero, "Division by zero");
    return std::clamp(Difference(value_, min_) / whole, 0.0, 1.0);
}

void cProgressBar::DrawBar(forms::Canvas& canvas, const forms::PixelRect& area) {
    Fill(canvas, area, backColor_);
    const double ratio = Ratio();
    percent_ = ratio * 100;
    const std::string text = std::to_string(text::RoundHalfEven(percent_)) + "%";
    if (showText_) canvas.DrawText(text, area, font_, TranslateColor(foreColor_));

    forms::PixelRect bar = area;
    bar.right = static_cast<int>(text::RoundHalfEven((area.right - area.left) * ratio + area.left));
    canvas.SetClip(bar);
    Fill(canvas, bar, barColor_);
    if (showText_) canvas.DrawText(text, area, font_, TranslateColor(barForeColor_));
    canvas.ClearClip();
    DrawFrame(canvas, area);
}

void cProgressBar::DrawFrame(forms::Canvas& canvas, const forms::PixelRect& area) const {
    const forms::Color shadow = TranslateColor(forms::SystemColor(forms::kButtonShadowNumber));
    canvas.DrawLine({area.left, area.bottom - 1}, {area.left, area.top}, shadow);
    canvas.DrawLine({area.left, area.top}, {area.right, area.top}, shadow);
    const forms::Color light = TranslateColor(forms::SystemColor(forms::kButtonHighlightNumber));
    canvas.DrawLine({area.right - 1, area.top + 1}, {area.right - 1, area.bottom - 1}, light);
    canvas.DrawLine({area.right - 1, area.bottom - 1}, {area.left, area.bottom - 1}, light);
}

void cProgressBar::Fill(forms::Canvas& canvas, const forms::PixelRect& area, forms::Color color) const {
    if (!forms::IsSystemColor(color)) {
        canvas.FillRect(area, color);
    } else if (const auto plain = theme_.SystemColor(forms::SystemColorNumber(color))) {
        canvas.FillRect(area, *plain);
    }
}

forms::Color cProgressBar::TranslateColor(forms::Color color) const {
    if (!forms::IsSystemColor(color)) return color;
    return theme_.SystemColor(forms::SystemColorNumber(color)).value_or(-1);
}

}  // namespace halvenmoor
