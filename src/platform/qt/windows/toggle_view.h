#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <type_traits>

namespace halvenmoor::qt {

/// A check box or radio button that breaks its words into lines and takes clicks anywhere in its place.
template <class Base>
class WrappingToggle : public Base {
public:
    explicit WrappingToggle(QWidget* parent) : Base(parent) {}

    /// Where the words may stand.
    QRect CaptionRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return this->rect().contains(position); }

private:
    static constexpr bool kIsCheckBox = std::is_same_v<Base, QCheckBox>;
};

}  // namespace halvenmoor::qt
