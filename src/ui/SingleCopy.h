#pragma once

// One copy of the program per folder. Two copies on one folder would each write the work buffers
// and the Library over what the other kept, and both would say all was well. The first copy
// holds a lock on the folder and listens; a later start asks it to come forward and ends. A
// lock left by a copy that crashed is taken over without asking.

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <filesystem>
#include <functional>

namespace veyrant {

class SingleCopy : public QObject {
public:
    explicit SingleCopy(const std::filesystem::path& root);

    // True when this process holds the folder; also when no lock can be made at all (a disk that
    // refuses it refuses the start too, which then says why).
    bool First() const { return first_; }

    // A later copy asks the first one to come forward; false when it cannot be reached.
    bool CallFirstForward() const;

    // In the first copy: a later start has asked it to come forward.
    std::function<void()> OnCalled;

private:
    QString serverName_;
    QLockFile lock_;
    QLocalServer server_;
    bool first_ = true;
};

} // namespace veyrant
