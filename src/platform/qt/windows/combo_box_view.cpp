#include "platform/qt/windows/combo_box_view.h"

#include "platform/qt/windows/conversions.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QStringList>

namespace halvenmoor::qt {

ComboBoxView::ComboBoxView(forms::ComboBox& box, QWidget& parent, const text::CodePage& page)
    : ViewOf(box, parent, page) {
    Widget().setEditable(true);
    Widget().setInsertPolicy(QComboBox::NoInsert);
    Widget().setCompleter(nullptr);
    QObject::connect(&Widget(), &QComboBox::activated, [this](int index) {
        if (!Control().UserChoose(index)) Update();
    });
    // The box's own signal would also tell of a choice.
    QObject::connect(Widget().lineEdit(), &QLineEdit::textEdited, [this](const QString& text) {
        if (!Control().UserTyped(text.toStdString())) Update();
    });
}

void ComboBoxView::ShowState() {
    if (shownItems_ != Control().ItemsVersion()) {
        QStringList items;
        for (int i = 0; i < Control().ListCount(); ++i) items << ToRow(Control().List(i), CodePage());
        Widget().clear();
        Widget().addItems(items);
        Widget().setMaxVisibleItems(Control().ListCount());  // Qt cuts the list to the screen
        shownItems_ = Control().ItemsVersion();
    }
    const QString name = ToText(Control().AccessibleName(), CodePage());
    Widget().lineEdit()->setAccessibleName(name);
    Widget().view()->setAccessibleName(name);
    Widget().setCurrentIndex(Control().ListIndex());
    const QString text = ToText(Control().Text(), CodePage());
    if (text != Widget().currentText()) Widget().setEditText(text);
}

}  // namespace halvenmoor::qt
