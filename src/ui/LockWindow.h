#pragma once

// The Library Lock window over its logic, opened from Library Options.

#include "app/LockOptions.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace veyrant {

class LockWindow : public QDialog {
public:
    explicit LockWindow(LockOptions& options, QWidget* parent = nullptr);

    void reject() override;

private:
    void Render();

    LockOptions& options_;
    QCheckBox* chkLock_;
    QLabel* lblStatement_;
    QLabel* lblPassphrase_;
    QLineEdit* txtPassphrase_;
    QLineEdit* txtConfirm_;
    QCheckBox* chkKeep_;
};

} // namespace veyrant
