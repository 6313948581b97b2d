#pragma once

// The Library Options window (frmOptions) over its logic: it turns the user's typing and clicks
// into the logic's handlers and shows the logic's controls after each of them.

#include "storage/Options.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace veyrant {

class OptionsWindow : public QDialog {
public:
    // The Library Lock window opens over this one when openLock is given.
    explicit OptionsWindow(Options& options, QWidget* parent = nullptr,
                           std::function<void(QWidget*)> openLock = {});

    // Escape and the window's close box are Cancel: every way out ends the program.
    void reject() override;

protected:
    // The window loads the first time it is shown, as the program's windows do.
    void showEvent(QShowEvent* event) override;

private:
    void Render();
    QWidget* FocusWidget(OptionsControl control) const;

    Options& options_;
    bool loaded_ = false;
    int focusMoves_ = 0;
    QLineEdit* txtSetSave_;
    QLineEdit* txtSetDays_;
    QCheckBox* Check1_;
    QLabel* Label3_;
    QLabel* Label4_;
    QLabel* lblSetSave_;
    QLabel* lblSetDays_;
    QPushButton* cmdOK_;
    QPushButton* cmdCancel_;
    QPushButton* cmdClean_;
};

} // namespace veyrant
