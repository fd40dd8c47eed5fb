#include "platform/qt/windows/accessibility.h"

#include "platform/qt/windows/form_window.h"
#include "platform/qt/windows/picture_box_view.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace halvenmoor::qt {

namespace {

/// Nothing for any other object: Qt knows its own widgets.
QAccessibleInterface* Describe(const QString&, QObject* object) {
    if (auto* const picture = dynamic_cast<PictureBoxWidget*>(object))
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    if (auto* const window = dynamic_cast<FormWindow*>(object))
        return new QAccessibleWidget(window, window->isModal() ? QAccessible::Dialog : QAccessible::Window);
    return nullptr;
}

}  // namespace

void InstallAccessibility() {
    QAccessible::installFactory(Describe);
}

}  // namespace halvenmoor::qt
