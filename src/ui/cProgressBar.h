#pragma once

#include "forms/canvas.h"
#include "forms/controls.h"
#include "platform/services.h"

#include <cstdint>

namespace halvenmoor {

/// A progress bar that draws itself on a picture box: a filled part and, if wanted, a centred percentage
/// whose letters change colour exactly at the edge of the bar. Every change of a property but the picture box
/// draws the whole bar at once. Drawing fails when Max equals Min, or when a difference of the values
/// overflows.
class cProgressBar {
public:
    explicit cProgressBar(const platform::Theme& theme) : theme_(theme) {}

    forms::PictureBox* PicBox() const { return picBox_; }
    /// A null pointer changes nothing.
    void SetPicBox(forms::PictureBox* box);
    std::int32_t Min() const { return min_; }
    void SetMin(std::int32_t value) { Store(min_, value); }
    std::int32_t Max() const { return max_; }
    void SetMax(std::int32_t value) { Store(max_, value); }
    std::int32_t Value() const { return value_; }
    void SetValue(std::int32_t value) { Store(value_, value); }
    bool ShowText() const { return showText_; }
    void SetShowText(bool showText) { Store(showText_, showText); }
    const forms::Font& Font() const { return font_; }
    void SetFont(const forms::Font& font) { Store(font_, font); }
    /// The empty part. The initial -1 names a system colour that does not exist, and nothing is filled.
    forms::Color BackColor() const { return backColor_; }
    void SetBackColor(forms::Color color) { Store(backColor_, color); }
    forms::Color ForeColor() const { return foreColor_; }
    void SetForeColor(forms::Color color) { Store(foreColor_, color); }
    forms::Color BarColor() const { return barColor_; }
    void SetBarColor(forms::Color color) { Store(barColor_, color); }
    forms::Color BarForeColor() const { return barForeColor_; }
    void SetBarForeColor(forms::Color color) { Store(barForeColor_, color); }

    /// What the last drawing showed, unrounded, 0 to 100.
    double Percent() const { return percent_; }
    void Draw();

private:
    template <class Type>
    void Store(Type& field, const Type& value) {
        field = value;
        Draw();
    }

    void DrawBar(forms::Canvas& canvas, const forms::PixelRect& area);
    void DrawFrame(forms::Canvas& canvas, const forms::PixelRect& area) const;
    void Fill(forms::Canvas& canvas, const forms::PixelRect& area, forms::Color color) const;
    forms::Color TranslateColor(forms::Color color) const;
    double Ratio() const;

    const platform::Theme& theme_;
    forms::PictureBox* picBox_ = nullptr;
    forms::Font font_{"Verdana", 8};
    forms::Color backColor_ = -1;
    forms::Color foreColor_ = forms::Rgb(0, 0, 0);
    forms::Color barColor_ = -1;
    forms::Color barForeColor_ = forms::Rgb(255, 255, 255);
    std::int32_t min_ = 0;
    std::int32_t max_ = 100;
    std::int32_t value_ = 0;
    double percent_ = 0;
    bool showText_ = false;
};

}  // namespace halvenmoor
