#include "platform/qt/services/browser.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

namespace halvenmoor::qt {

void QtBrowser::Open(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(path.c_str())));
}

}  // namespace halvenmoor::qt
