#pragma once

// The Write window's Qt form: its controls, created and placed for the display scale in the
// Opening arrangement. The Write window's logic drives them through the accessors.

#include "shell/Application.h"

#include <QWidget>
#include <functional>

class QFrame;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace veyrant {

struct MirrorControls {
    QFrame* Panel1 = nullptr;
    QPushButton* cmdConverse = nullptr;
    QPushButton* cmdSuppose = nullptr;
    QPushButton* cmdNotate = nullptr;
    QPushButton* cmdKnow = nullptr;
    QPushButton* cmdRetrieve = nullptr;
    QPushButton* cmdHelp = nullptr;
    QPushButton* cmdClear = nullptr;
    QPushButton* cmdRemove = nullptr;
    QPushButton* cmdDisplay = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdNew = nullptr;
    QPlainTextEdit* txtMirror = nullptr;
    QPlainTextEdit* txtResponse = nullptr;
    QPlainTextEdit* txtAnalyze = nullptr;
    QPlainTextEdit* txtSaved = nullptr;
    QLabel* txtNote = nullptr;
    QLabel* lblRem = nullptr;
    QLabel* lblRemS = nullptr;
};

class MirrorWindow final : public QWidget {
public:
    explicit MirrorWindow(const Application& app);

    const MirrorControls& Controls() const { return controls_; }

    // Runs when the user closes the window; the window itself stays until the logic hides it.
    std::function<void()> OnClose;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    MirrorControls controls_;
};

} // namespace veyrant
