#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"

#include <QGroupBox>

namespace halvenmoor::qt {

/// A group box whose title interrupts its border, whatever the style, so that what stands in the frame fits.
class TitledFrame : public QGroupBox {
public:
    explicit TitledFrame(QWidget* parent) : QGroupBox(parent) {}

    /// Where the title may stand.
    QRect TitleRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static constexpr int kIndent = 8;
    static constexpr int kGap = 3;
};

class FrameView : public ViewOf<forms::Frame, TitledFrame> {
public:
    using ViewOf::ViewOf;

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
