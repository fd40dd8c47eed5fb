#include "platform/qt/services/message_box.h"

#include "platform/qt/windows/form_window.h"

#include <QMessageBox>

namespace halvenmoor::qt {

void QtMessageBox::Show(const std::string& text, const std::string& title) {
    QMessageBox box(QMessageBox::Warning, QString::fromStdString(title),
                    QString::fromStdString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")),
                    QMessageBox::Ok, TopWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

}  // namespace halvenmoor::qt
