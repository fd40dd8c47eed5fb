#include "platform/qt/services/instance_guard.h"

#include <QFile>
#include <QLocalSocket>

namespace halvenmoor::qt {

namespace {

// What a later instance sends: the word, a blank, the token, a line end.
constexpr char kRaise[] = "raise ";
constexpr qint64 kMaxMessage = 1024;
constexpr char kTokenVariable[] = "XDG_ACTIVATION_TOKEN";
constexpr int kTimeoutMilliseconds = 1000;

}  // namespace

InstanceGuard::InstanceGuard(platform::InstanceLock& lock) : lock_(lock) {
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* const guest = server_.nextPendingConnection()) {
            QObject::connect(guest, &QLocalSocket::disconnected, guest, &QObject::deleteLater);
            QObject::connect(guest, &QLocalSocket::readyRead, guest,
                             [this, guest] { HandleMessage(*guest); });
        }
    });
}

bool InstanceGuard::IsFirst() {
    const bool isFirst = lock_.IsFirst();
    if (isFirst && !server_.isListening()) Listen();
    return isFirst;
}

void InstanceGuard::Listen() {
    const QString path = SocketPath();
    if (path.isEmpty()) return;
    QLocalServer::removeServer(path);  // left behind by an instance that crashed
    server_.listen(path);
}

void InstanceGuard::HandleMessage(QLocalSocket& guest) {
    if (!guest.canReadLine()) {
        if (guest.bytesAvailable() > kMaxMessage) guest.abort();
        return;
    }
    QByteArray message = guest.readLine(kMaxMessage);
    guest.disconnectFromServer();
    if (!message.startsWith(kRaise) || !message.endsWith('\n') || !OnRaise) return;
    OnRaise(message.mid(static_cast<qsizetype>(sizeof kRaise) - 1).trimmed());
}

void InstanceGuard::RaiseOther() const {
    QLocalSocket other;
    other.connectToServer(SocketPath());
    if (!other.waitForConnected(kTimeoutMilliseconds)) return;
    other.write(kRaise + qgetenv(kTokenVariable) + '\n');
    other.waitForBytesWritten(kTimeoutMilliseconds);
    other.disconnectFromServer();
}

QString InstanceGuard::SocketPath() const {
    return QFile::decodeName(lock_.SocketPath().c_str());
}

}  // namespace halvenmoor::qt
