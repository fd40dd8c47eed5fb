#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

namespace halvenmoor {

/// Watches for the first window that is painted. Then it ends the process at once or, if that is to stay,
/// says so on standard output.
class FirstPaint : public QObject {
public:
    /// Needs a QApplication, and lives as long.
    explicit FirstPaint(bool stay) : stay_(stay) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(0, this,
                               [this] { WasPainted(); });  // the rest of the window is painted before
        }
        return false;
    }

private:
    void WasPainted() const {
        if (!stay_) std::_Exit(EXIT_SUCCESS);
        std::puts("painted");
        std::fflush(stdout);
    }

    bool stay_;
};

}  // namespace halvenmoor
