#pragma once

// The last net of every window handler and timer: an exception that no handler of the program
// caught ends in the program's system error box, never in a silent exit.

#include <QApplication>
#include <functional>

namespace veyrant {

class GuardedApplication : public QApplication {
public:
    GuardedApplication(int& argc, char** argv, std::function<void(int)> reportSystemError);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    std::function<void(int)> reportSystemError_;
};

} // namespace veyrant
