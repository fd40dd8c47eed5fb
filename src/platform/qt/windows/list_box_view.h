#pragma once

#include "forms/list_box.h"
#include "platform/qt/windows/control_view.h"

#include <QAbstractListModel>
#include <QListView>
#include <QMimeData>
#include <QPixmap>
#include <algorithm>
#include <cstdint>
#include <vector>

namespace halvenmoor::qt {

/// Reads the rows straight from the form's list.
class ListRows : public QAbstractListModel {
public:
    ListRows(const forms::ListBox& list, const text::CodePage& page, QObject* parent)
        : QAbstractListModel(parent), list_(list), page_(page) {}

    /// Takes over the items of the list after they have changed.
    void Reload();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    const forms::ListBox& list_;
    const text::CodePage& page_;
    int count_ = 0;
};

/// What a drag of the program's own carries: no other drag brings an object of this class.
class DraggedItems : public QMimeData {
public:
    DraggedItems();
};

class ListBoxWidget : public QListView {
public:
    explicit ListBoxWidget(QWidget* parent);

    /// To be called once, before the widget shows.
    void SetList(forms::ListBox& list, const text::CodePage& page);
    void ShowState();
    int TopRow() const { return std::max(indexAt({0, 0}).row(), 0); }

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    std::vector<int> SelectedRows() const;
    void ShowSelection();
    void ShowCurrentRow();
    void PaintBorder();
    /// Tells the list what the user selected.
    void Report();
    bool Accepts(const QDropEvent& drop) const;
    QPixmap DragPicture(const QString& text) const;
    void ShowAsTarget(bool isTarget);
    /// Shows the text of a row that is cut off.
    void ShowWholeText(const QHelpEvent& event) const;

    forms::ListBox* list_ = nullptr;
    ListRows* rows_ = nullptr;
    std::uint64_t shownItems_ = 0;
    /// The user changed the selection and the list has not heard of it yet.
    bool selectionChanged_ = false;
    /// The mouse went down on a row and the list has not heard of it yet.
    bool clickPending_ = false;
    /// The mouse went down for the second click of a double click; its release opens what that opens.
    bool doubleClickPending_ = false;
    /// A drag from another list is over this one and would be taken.
    bool isTarget_ = false;
};

class ListBoxView : public ViewOf<forms::ListBox, ListBoxWidget> {
public:
    ListBoxView(forms::ListBox& list, QWidget& parent, const text::CodePage& page)
        : ViewOf(list, parent, page) {
        Widget().SetList(list, page);
    }

    int TopRow() const { return Widget().TopRow(); }
    /// In pixels; 0 where there is no row.
    int RowHeight() const { return std::max(Widget().sizeHintForRow(0), 0); }

private:
    void ShowState() override { Widget().ShowState(); }
};

}  // namespace halvenmoor::qt
