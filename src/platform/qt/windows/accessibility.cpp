#include "platform/qt/windows/accessibility.h"

#include "platform/qt/windows/form_window.h"
#include "platform/qt/windows/picture_box_view.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace halvenmoor::qt {

namespace {

/// A notification: it has no size, and screen readers say its name when it shows.
class Notice : public QWidget {
public:
    explicit Notice(QWidget& window) : QWidget(&window) {
        setObjectName(kName);
        resize(0, 0);
    }

    static constexpr auto kName = "notice";
};

/// Nothing for any other object: Qt knows its own widgets.
QAccessibleInterface* Describe(const QString&, QObject* object) {
    if (auto* const picture = dynamic_cast<PictureBoxWidget*>(object))
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    if (auto* const notice = dynamic_cast<Notice*>(object))
        return new QAccessibleWidget(notice, QAccessible::Notification);
    if (auto* const window = dynamic_cast<FormWindow*>(object))
        return new QAccessibleWidget(window, window->isModal() ? QAccessible::Dialog : QAccessible::Window);
    return nullptr;
}

}  // namespace

void InstallAccessibility() {
    QAccessible::installFactory(Describe);
}

void AnnounceIn(QWidget& window, const QString& text) {
    delete window.findChild<QWidget*>(Notice::kName);
    auto* const notice = new Notice(window);
    notice->setAccessibleName(text);
    notice->show();
}

}  // namespace halvenmoor::qt
