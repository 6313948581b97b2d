#pragma once

// The OK and Cancel row of the program's small windows: OK is the default, and both carry the
// control names the logic uses.

#include <QDialogButtonBox>
#include <QPushButton>

namespace veyrant {

struct OkCancelButtons {
    QDialogButtonBox* Box;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};

inline OkCancelButtons MakeOkCancelButtons(QWidget* parent) {
    auto* box = new QDialogButtonBox(parent);
    auto* ok = box->addButton(QDialogButtonBox::tr("&OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    auto* cancel = box->addButton(QDialogButtonBox::tr("&Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName("cmdCancel");
    return {box, ok, cancel};
}

} // namespace veyrant
