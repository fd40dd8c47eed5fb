#include "platform/qt/services/browser.h"

#include "platform/qt/windows/conversions.h"

#include <QDesktopServices>
#include <QUrl>

namespace halvenmoor::qt {

void QtBrowser::Open(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(FromPath(path)));
}

}  // namespace halvenmoor::qt
