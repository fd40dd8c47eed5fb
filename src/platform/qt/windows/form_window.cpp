#include "platform/qt/windows/form_window.h"

#include "platform/qt/windows/control_view.h"
#include "platform/qt/windows/conversions.h"
#include "platform/qt/windows/list_box_view.h"
#include "platform/qt/windows/picture_box_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QWindow>
#include <algorithm>

namespace halvenmoor::qt {

namespace {

constexpr char32_t kEscape = 27;

Qt::WindowFlags WindowFlags(const forms::FormDesign& design, bool isModal) {
    Qt::WindowFlags flags = design.toolWindow ? Qt::Tool : isModal ? Qt::Dialog : Qt::Window;
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (design.closeBox) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    return flags;
}

/// "[*]" is a placeholder in the titles of Qt unless it is doubled.
QString ToTitle(const std::string& caption, const text::CodePage& page) {
    return ToText(caption, page).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, const text::CodePage& page, QWidget* below)
    : QWidget(below, WindowFlags(form.AtDesign(), below != nullptr)), form_(form), page_(page) {
    if (below != nullptr) setWindowModality(Qt::ApplicationModal);
    setWindowIcon(ProgramIcon());
    setObjectName(QString::fromStdString(form.AtDesign().name));
    BuildControls();
    Place();
    LowerFrames();
    ChainTabs();
    ListenToKeys();
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* focused) { UserFocused(focused); });
}

FormWindow::~FormWindow() {
    // The form's controls may be gone already, so nothing may reach them while the widgets go.
    disconnect(qApp, nullptr, this, nullptr);
}

void FormWindow::Show() {
    show();
    activateWindow();  // Windows leaves that out for a tool window
    connect(windowHandle(), &QWindow::screenChanged, this, &FormWindow::Place, Qt::UniqueConnection);
}

/// Fits the window and its controls to the scale of its screen.
void FormWindow::Place() {
    const forms::FormDesign& design = form_.AtDesign();
    setFixedSize(ToRect(forms::Bounds{0, 0, design.width, design.height}, devicePixelRatioF()).size());
    for (const auto& [control, view] : views_) view->Place();
}

void FormWindow::BuildControls() {
    for (forms::Control* control : form_.Controls()) {
        const forms::Control* const frame = control->AtDesign().frame;
        QWidget& parent = frame != nullptr ? views_.at(frame)->Widget() : *this;
        std::unique_ptr<ControlView> view = MakeControlView(*control, parent, page_);
        if (form_.AtDesign().keyPreview) view->Widget().installEventFilter(this);
        // Screen readers name a box with choices after its choice, and find out by the label what it is for.
        if (const forms::Control* const label = control->AtDesign().label)
            static_cast<QLabel&>(views_.at(label)->Widget()).setBuddy(&view->Widget());
        views_.emplace(control, std::move(view));
    }
}

void FormWindow::LowerFrames() {
    const auto& controls = form_.Controls();
    std::for_each(controls.rbegin(), controls.rend(), [this](const forms::Control* control) {
        if (control->Kind() == forms::ControlKind::Frame) views_.at(control)->Widget().lower();
    });
}

void FormWindow::ChainTabs() {
    QWidget* before = nullptr;
    for (const forms::Control* control : form_.InTabOrder()) {
        QWidget* const widget = &views_.at(control)->Widget();
        if (before != nullptr) setTabOrder(before, widget);
        before = widget;
    }
}

void FormWindow::ListenToKeys() {
    for (const forms::Shortcut& shortcut : form_.Shortcuts()) {
        const bool isOfControl = shortcut.control != nullptr;
        auto* const keys = new QShortcut(isOfControl ? &views_.at(shortcut.control)->Widget() : this);
        keys->setContext(isOfControl ? Qt::WidgetShortcut : Qt::WindowShortcut);
        keys->setKeys(ToKeys(shortcut.key));
        keys->setAutoRepeat(false);
        connect(keys, &QShortcut::activated, this, [this, key = shortcut.key] { form_.UserShortcut(key); });
    }
}

void FormWindow::Hide() {
    hide();
    if (onHidden_) onHidden_();
}

void FormWindow::Update() {
    const QScopedValueRollback<bool> guard(updating_, true);
    setWindowTitle(ToTitle(form_.Caption(), page_));
    setCursor(form_.Busy() ? Qt::BusyCursor : Qt::ArrowCursor);
    if (const auto position = form_.TakeMove()) MoveTo(*position);
    for (const forms::Control* control : form_.TakeChanges()) views_.at(control)->Update();
    ShowFocus();
}

/// The program counts from the corner of the primary screen, where it opens. The main window goes no farther
/// up or to the left than it can be grasped.
void FormWindow::MoveTo(forms::Point position) {
    const QScreen& screen = *QGuiApplication::primaryScreen();
    QPoint corner =
        screen.geometry().topLeft() + QPoint(forms::ToPixels(position.left), forms::ToPixels(position.top));
    if (!isModal()) {
        const QPoint first = screen.availableGeometry().topLeft();
        corner = {std::max(corner.x(), first.x()), std::max(corner.y(), first.y())};
    }
    move(corner);
}

forms::Point FormWindow::Position() const {
    const QPoint corner = pos() - QGuiApplication::primaryScreen()->geometry().topLeft();
    return {corner.x() * forms::kTwipsPerPixel, corner.y() * forms::kTwipsPerPixel};
}

forms::FrameMetrics FormWindow::WindowFrame() const {
    const QRect outside = frameGeometry();
    const QRect inside = geometry();
    const int frameHeight = outside.bottom() - inside.bottom();
    const int captionHeight = inside.top() - outside.top() - frameHeight;
    return {.frameWidth = inside.left() - outside.left(),
            .frameHeight = frameHeight,
            .captionHeight = captionHeight,
            .smallCaptionHeight = captionHeight};
}

int FormWindow::TopIndex(const forms::ListBox& list) const {
    return static_cast<const ListBoxView&>(*views_.at(&list)).TopRow();
}

forms::Twips FormWindow::RowHeight(const forms::ListBox& list) const {
    return static_cast<const ListBoxView&>(*views_.at(&list)).RowHeight() * forms::kTwipsPerPixel;
}

forms::Canvas& FormWindow::CanvasOf(forms::PictureBox& box) {
    return static_cast<PictureBoxView&>(*views_.at(&box)).Canvas();
}

void FormWindow::ShowFocus() {
    const forms::Control* const active = form_.ActiveControl();
    QWidget* const wanted = active != nullptr ? &views_.at(active)->Widget() : nullptr;
    if (wanted == focusWidget()) return;
    if (wanted != nullptr) {
        wanted->setFocus(Qt::OtherFocusReason);
    } else {
        focusWidget()->clearFocus();
    }
}

void FormWindow::UserFocused(const QWidget* widget) {
    if (updating_ || widget == nullptr) return;
    for (forms::Control* control : form_.Controls()) {
        if (&views_.at(control)->Widget() == widget && !control->UserFocused()) ShowFocus();
    }
}

bool FormWindow::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    // The Enter that opened the window may still be down.
    if (key.isAutoRepeat() && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) return true;
    bool isConsumed = false;
    for (const char32_t character : key.text().toUcs4()) {
        isConsumed |= character != kEscape && form_.UserKeyPress(character);
    }
    return isConsumed;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool isTaken = event->key() == Qt::Key_Escape && form_.UserEscape();
    event->setAccepted(isTaken);
}

void FormWindow::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    form_.Painted();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();  // the form closes its window, or refuses to
    form_.UserClose();
}

QWidget* TopWindow() {
    if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && dynamic_cast<FormWindow*>(window) != nullptr) return window;
    }
    return nullptr;
}

void RaiseWindows() {
    QWidget* const top = TopWindow();
    if (top == nullptr) return;
    for (QWidget* window = top; window != nullptr; window = window->parentWidget()) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    }
    top->raise();
    top->activateWindow();
}

}  // namespace halvenmoor::qt
