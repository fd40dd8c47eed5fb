#include "platform/qt/services/instance_guard.h"

#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>
#include <cerrno>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace halvenmoor::qt {

namespace {

// What a later instance sends: the word, a blank, the token, a line end.
constexpr char kRaise[] = "raise ";
constexpr qint64 kMaxMessage = 1024;
constexpr char kTokenVariable[] = "XDG_ACTIVATION_TOKEN";
constexpr int kTimeoutMilliseconds = 1000;

QString SocketPath(const QString& folder) {
    return folder + QStringLiteral("/halvenmoor.socket");
}

/// A folder of this user that nobody else can enter; empty if the path is anything else.
QString MakePrivate(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    ::mkdir(name.constData(), S_IRWXU);  // it may be there already
    struct stat found = {};
    const bool isOurs = ::lstat(name.constData(), &found) == 0 && S_ISDIR(found.st_mode) &&
                        found.st_uid == ::geteuid() && (found.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    return isOurs ? path : QString();
}

}  // namespace

InstanceGuard::InstanceGuard(const QString& folder)
    : folder_(folder), lockFile_(folder + QStringLiteral("/halvenmoor.lock")) {
}

bool InstanceGuard::IsFirst() {
    if (!isFirst_) {
        isFirst_ = Lock();
        if (*isFirst_) Listen();
    }
    return *isFirst_;
}

bool InstanceGuard::Lock() {
    // A folder that takes no lock must not keep the program from starting.
    if (folder_.isEmpty() || !lockFile_.open(QFile::ReadWrite)) return true;
    // The system's own lock: what the file holds, or who left it behind, does not matter.
    isLocked_ = ::flock(lockFile_.handle(), LOCK_EX | LOCK_NB) == 0;
    return isLocked_ || errno != EWOULDBLOCK;
}

void InstanceGuard::Listen() {
    if (!isLocked_) return;
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* const guest = server_.nextPendingConnection()) {
            QObject::connect(guest, &QLocalSocket::disconnected, guest, &QObject::deleteLater);
            QObject::connect(guest, &QLocalSocket::readyRead, guest,
                             [this, guest] { HandleMessage(*guest); });
        }
    });
    QLocalServer::removeServer(SocketPath(folder_));  // left behind by an instance that crashed
    // For this user only from its first moment. The server's own option makes a folder for that, and an
    // instance that is killed then leaves it behind.
    const mode_t before = ::umask(S_IRWXG | S_IRWXO);
    server_.listen(SocketPath(folder_));
    ::umask(before);
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
    other.connectToServer(SocketPath(folder_));
    if (!other.waitForConnected(kTimeoutMilliseconds)) return;
    other.write(kRaise + qgetenv(kTokenVariable) + '\n');
    other.waitForBytesWritten(kTimeoutMilliseconds);
    other.disconnectFromServer();
}

QString InstanceGuard::RuntimeFolder() {
    // Asked without the variable, Qt would complain and then invent a folder.
    if (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
        if (!folder.isEmpty()) return folder;
    }
    return MakePrivate(QDir::tempPath() + QStringLiteral("/halvenmoor-%1").arg(::geteuid()));
}

}  // namespace halvenmoor::qt
