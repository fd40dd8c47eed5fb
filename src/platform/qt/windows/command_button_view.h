#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"

#include <QPushButton>

namespace halvenmoor::qt {

/// A push button with words or with a glyph drawn in the colour of its words.
class GlyphButton : public QPushButton {
public:
    explicit GlyphButton(QWidget* parent) : QPushButton(parent) {}

    /// The size is that of a font, in points.
    void SetGlyph(forms::Glyph glyph, double size) {
        glyph_ = glyph;
        glyphSize_ = size;
    }
    /// Where the words may stand.
    QRect CaptionRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    forms::Glyph glyph_ = forms::Glyph::None;
    double glyphSize_ = 0;
};

class CommandButtonView : public ViewOf<forms::CommandButton, GlyphButton> {
public:
    CommandButtonView(forms::CommandButton& button, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
