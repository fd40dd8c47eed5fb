#pragma once

#include <QByteArray>
#include <QFile>
#include <QLocalServer>
#include <QString>
#include <functional>
#include <optional>

namespace halvenmoor::qt {

/// Lets one instance of the program run for each user. The lock goes with its process, however that ends; the
/// instance that holds it listens for later ones, which ask it to come to the front.
class InstanceGuard {
public:
    /// A folder that is the user's alone; empty: there is none, and nothing is guarded.
    explicit InstanceGuard(const QString& folder = RuntimeFolder());

    /// Whether no other instance was running. The first call decides for good.
    bool IsFirst();
    /// Asks the other instance to come to the front. Does nothing when none answers.
    void RaiseOther() const;

    /// Called in the first instance with the token by which the window system lets it come to the front; the
    /// token may be empty.
    std::function<void(const QByteArray&)> OnRaise;

    /// The user's runtime folder or, where the system has none, a private one below the temporary folder.
    static QString RuntimeFolder();

private:
    bool Lock();
    void Listen();
    void HandleMessage(QLocalSocket& guest);

    QString folder_;
    std::optional<bool> isFirst_;
    QFile lockFile_;  // it stays where it is, locked or not
    bool isLocked_ = false;
    QLocalServer server_;
};

}  // namespace halvenmoor::qt
