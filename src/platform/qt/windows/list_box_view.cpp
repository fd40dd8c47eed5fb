#include "platform/qt/windows/list_box_view.h"

#include "platform/qt/windows/conversions.h"

#include <QDrag>
#include <QDropEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

namespace halvenmoor::qt {

namespace {

constexpr int kTargetFrame = 3;
/// From the pointer to the picture of a drag.
constexpr QPoint kBesidePointer{12, 12};

}  // namespace

void ListRows::Reload() {
    beginResetModel();
    count_ = list_.ListCount();
    endResetModel();
}

QVariant ListRows::data(const QModelIndex& index, int role) const {
    // The list may have shrunk since the last reload.
    const bool isWanted = role == Qt::DisplayRole || role == Qt::TextAlignmentRole;
    if (!isWanted || index.row() >= list_.ListCount()) return {};
    const QString row = ToRow(list_.List(index.row()), page_);
    if (role == Qt::DisplayRole) return row;
    return QVariant::fromValue(Qt::AlignVCenter | SideOf(row));
}

Qt::ItemFlags ListRows::flags(const QModelIndex&) const {
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

DraggedItems::DraggedItems() {
    // A format that no other program knows, so that none takes the drop.
    setData(QStringLiteral("application/x-halvenmoor-items"), "items");
}

ListBoxWidget::ListBoxWidget(QWidget* parent) : QListView(parent) {
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);  // the speed stands at the end of a name
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
}

void ListBoxWidget::SetList(forms::ListBox& list, const text::CodePage& page) {
    list_ = &list;
    rows_ = new ListRows(list, page, this);
    setModel(rows_);
}

void ListBoxWidget::ShowState() {
    const int top = verticalScrollBar()->value();
    if (shownItems_ != list_->ItemsVersion()) {
        rows_->Reload();
        doItemsLayout();
        shownItems_ = list_->ItemsVersion();
    }
    ShowSelection();
    ShowCurrentRow();
    verticalScrollBar()->setValue(top);  // the current row has scrolled into view, wanted or not
    if (list_->TakeScroll()) scrollTo(currentIndex());
    selectionChanged_ = false;
}

void ListBoxWidget::ShowSelection() {
    std::vector<int> wanted;
    for (int row = 0; row < list_->ListCount(); ++row) {
        if (list_->Selected(row)) wanted.push_back(row);
    }
    if (wanted == SelectedRows()) return;
    QItemSelection ranges;
    for (std::size_t i = 0; i < wanted.size();) {
        std::size_t last = i;
        while (last + 1 < wanted.size() && wanted[last + 1] == wanted[last] + 1) ++last;
        ranges.append({rows_->index(wanted[i]), rows_->index(wanted[last])});
        i = last + 1;
    }
    selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
}

void ListBoxWidget::ShowCurrentRow() {
    if (currentIndex().row() == list_->ListIndex()) return;
    selectionModel()->setCurrentIndex(rows_->index(list_->ListIndex()), QItemSelectionModel::NoUpdate);
}

std::vector<int> ListBoxWidget::SelectedRows() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

bool ListBoxWidget::event(QEvent* event) {
    if (event->type() == QEvent::Paint) {
        PaintBorder();
        return true;
    }
    const bool handled = QListView::event(event);
    if (selectionChanged_) Report();
    return handled;
}

bool ListBoxWidget::viewportEvent(QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        clickPending_ = mouse.button() == Qt::LeftButton && indexAt(mouse.position().toPoint()).isValid();
        doubleClickPending_ =
            clickPending_ && type == QEvent::MouseButtonDblClick && mouse.modifiers() == Qt::NoModifier;
    }
    if (type == QEvent::ToolTip) {
        ShowWholeText(static_cast<const QHelpEvent&>(*event));
        return true;
    }
    const bool handled = QListView::viewportEvent(event);
    // A click that changes nothing counts as well, once the mouse is up.
    const bool isClick = clickPending_ && type == QEvent::MouseButtonRelease;
    const bool isDoubleClick = isClick && std::exchange(doubleClickPending_, false);
    if (selectionChanged_ || isClick) Report();
    // A window that opens while the button is still down would miss its release.
    if (isDoubleClick) list_->UserDoubleClick();
    return handled;
}

void ListBoxWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    selectionChanged_ = true;
}

void ListBoxWidget::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    // Without a current row nothing else would show where the keys go.
    const int thickness = isTarget_ ? kTargetFrame : hasFocus() ? 1 : 0;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Highlight));
    for (int i = 0; i < thickness; ++i) painter.drawRect(viewport()->rect().adjusted(i, i, -1 - i, -1 - i));
}

/// Paints one device pixel on each side. The line of a style would be partly below the rows at scales that
/// are not whole.
void ListBoxWidget::PaintBorder() {
    const double line = 1 / devicePixelRatioF();
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    const QColor color = BorderColor(palette());
    painter.fillRect(QRectF(0, 0, width(), line), color);
    painter.fillRect(QRectF(0, height() - line, width(), line), color);
    painter.fillRect(QRectF(0, line, line, height() - 2 * line), color);
    painter.fillRect(QRectF(width() - line, line, line, height() - 2 * line), color);
}

void ListBoxWidget::Report() {
    selectionChanged_ = false;
    clickPending_ = false;
    if (!list_->UserSelect(SelectedRows(), currentIndex().row())) ShowState();
}

void ListBoxWidget::startDrag(Qt::DropActions) {
    clickPending_ = false;
    if (!list_->UserStartDrag()) return;
    auto* const drag = new QDrag(this);  // ends its own life after exec
    drag->setMimeData(new DraggedItems);
    drag->setPixmap(DragPicture(QString::fromStdString(list_->DragText())));
    drag->setHotSpot(-kBesidePointer);
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    list_->UserCompleteDrag();
}

bool ListBoxWidget::Accepts(const QDropEvent& drop) const {
    const bool isOwnDrag = dynamic_cast<const DraggedItems*>(drop.mimeData()) != nullptr;
    return isOwnDrag && list_->OLEDropMode() == forms::ListBox::DropMode::Manual;
}

/// A text on a label as of a tool tip.
QPixmap ListBoxWidget::DragPicture(const QString& text) const {
    QLabel label(fontMetrics().elidedText(text, textElideMode(), viewport()->width()));
    label.setTextFormat(Qt::PlainText);
    label.setFont(font());
    label.setPalette(QToolTip::palette());
    label.setBackgroundRole(QPalette::ToolTipBase);
    label.setForegroundRole(QPalette::ToolTipText);
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    label.setMargin(2);
    return label.grab();
}

void ListBoxWidget::ShowAsTarget(bool isTarget) {
    if (std::exchange(isTarget_, isTarget) != isTarget) viewport()->update();
}

void ListBoxWidget::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(Accepts(*event));
    // A drop where the drag began moves nothing.
    ShowAsTarget(event->isAccepted() && event->source() != this);
}

void ListBoxWidget::dragLeaveEvent(QDragLeaveEvent*) {
    ShowAsTarget(false);
}

void ListBoxWidget::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(Accepts(*event));
}

void ListBoxWidget::dropEvent(QDropEvent* event) {
    ShowAsTarget(false);
    event->setAccepted(Accepts(*event));
    if (event->isAccepted()) list_->UserDrop();
}

void ListBoxWidget::ShowWholeText(const QHelpEvent& event) const {
    const QModelIndex index = indexAt(event.pos());
    const bool isCut = index.isValid() && sizeHintForIndex(index).width() > visualRect(index).width();
    const QString text = isCut ? index.data().toString().toHtmlEscaped() : QString();
    QToolTip::showText(event.globalPos(), isCut ? "<p style='white-space:pre'>" + text + "</p>" : text);
}

}  // namespace halvenmoor::qt
