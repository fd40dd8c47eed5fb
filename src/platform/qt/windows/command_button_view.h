#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"

#include <QPushButton>

namespace halvenmoor::qt {

/// A push button with words or with a glyph drawn in the colour of its words.
class GlyphButton : public QPushButton {
public:
    explicit GlyphButton(QWidget* parent) : QPushButton(parent) {}

    void SetGlyph(forms::Glyph glyph) { glyph_ = glyph; }
    /// Where the words may stand.
    QRect CaptionRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    forms::Glyph glyph_ = forms::Glyph::None;
};

class CommandButtonView : public ViewOf<forms::CommandButton, GlyphButton> {
public:
    CommandButtonView(forms::CommandButton& button, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
