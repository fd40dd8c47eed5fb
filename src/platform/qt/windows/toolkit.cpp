#include "platform/qt/windows/toolkit.h"

#include "platform/qt/windows/accessibility.h"
#include "platform/qt/windows/form_window.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScopeGuard>
#include <QSessionManager>
#include <QTimer>
#include <chrono>
#include <future>

namespace halvenmoor::qt {

namespace {

// A shorter wait is not worth a sleep, which may come back late.
constexpr double kShortestSleep = 0.002;

// Milliseconds between two yields of a loop that offers many. A click is answered within a few of these.
constexpr qint64 kYieldInterval = 10;

// Screen readers start to speak anew when a window or a control gets the focus, so they have to be through
// with that.
constexpr std::chrono::milliseconds kBeforeAnnouncement{500};

void RunUntilHidden(FormWindow& window, QEventLoop& loop) {
    window.SetOnHidden([&loop] { loop.quit(); });
    loop.exec();
    window.SetOnHidden(nullptr);
}

}  // namespace

QtToolkit::QtToolkit(const platform::Locale& locale) : page_(locale.CodePage()) {
    InstallAccessibility();
}

std::unique_ptr<forms::View> QtToolkit::CreateView(forms::Form& form) {
    QWidget* const below = TopWindow();
    auto window = std::make_unique<FormWindow>(form, page_, below);
    if (below == nullptr) mainWindow_ = window.get();
    return window;
}

void QtToolkit::RunModal(forms::Form& form, const std::function<void()>& first) {
    if (!form.IsOpen()) return;
    QEventLoop loop;
    QTimer starter;
    starter.setSingleShot(true);
    QObject::connect(&starter, &QTimer::timeout, first);
    starter.start(0);
    RunUntilHidden(static_cast<FormWindow&>(*form.GetView()), loop);
}

void QtToolkit::HandleEvents(double waitSeconds) {
    Pump(waitSeconds);
    sinceYield_.start();
}

bool QtToolkit::YieldIsDue() const {
    return !sinceYield_.isValid() || sinceYield_.hasExpired(kYieldInterval);
}

void QtToolkit::Copy(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

void QtToolkit::Announce(const std::string& text) {
    QTimer::singleShot(kBeforeAnnouncement, qApp, [words = QString::fromStdString(text)] {
        if (QWidget* const window = TopWindow()) AnnounceIn(*window, words);
    });
}

void QtToolkit::Wait(const std::function<void()>& work) {
    QEventLoop loop;
    std::future<void> done = std::async(std::launch::async, [&] {
        const auto quit =
            qScopeGuard([&] { QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection); });
        work();
    });
    loop.exec();
    done.get();
}

void QtToolkit::Pump(double waitSeconds) {
    if (waitSeconds < kShortestSleep) {
        QCoreApplication::processEvents();
        return;
    }
    QTimer alarm;
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.start(static_cast<int>(waitSeconds * 1000));
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void QtToolkit::Run(forms::Desktop& desktop) {
    if (desktop.Ended() || mainWindow_ == nullptr) return;
    QEventLoop loop;
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &loop,
        [&desktop](QSessionManager& session) {
            if (!desktop.CloseAll()) session.cancel();
        },
        Qt::DirectConnection);
    RunUntilHidden(*mainWindow_, loop);
}

}  // namespace halvenmoor::qt
