#include "ui/LockWindow.h"

#include "ui/OkCancelButtons.h"
#include "ui/QtText.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace veyrant {

namespace {

QLineEdit* MakePassphraseBox(const char* name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setEchoMode(QLineEdit::Password);
    box->setContextMenuPolicy(Qt::NoContextMenu);
    return box;
}

// A character with no Windows-1252 code makes the passphrase read as empty, which the logic
// refuses.
std::string FromQt(const QString& text) {
    return Utf16ToCp1252(text.toStdU16String()).value_or(std::string());
}

} // namespace

LockWindow::LockWindow(LockOptions& options, QWidget* parent) : QDialog(parent), options_(options) {
    setObjectName("frmLock");
    setWindowTitle(tr("Veyrant Sagrel Library Lock"));
    chkLock_ = new QCheckBox(tr("&Lock the Library with a passphrase"), this);
    chkLock_->setObjectName("chkLock");
    lblStatement_ = new QLabel(this);
    lblStatement_->setObjectName("lblStatement");
    lblStatement_->setWordWrap(true);
    lblPassphrase_ = new QLabel(this);
    lblPassphrase_->setObjectName("lblPassphrase");
    txtPassphrase_ = MakePassphraseBox("txtPassphrase", this);
    txtConfirm_ = MakePassphraseBox("txtConfirm", this);
    lblPassphrase_->setBuddy(txtPassphrase_);
    chkKeep_ = new QCheckBox(
        tr("&Keep the passphrase in the desktop's keyring, so that an open session is not asked"),
        this);
    chkKeep_->setObjectName("chkKeep");
    const OkCancelButtons row = MakeOkCancelButtons(this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setSpacing(10);
    layout->addWidget(lblStatement_);
    layout->addWidget(chkLock_);
    layout->addWidget(lblPassphrase_);
    layout->addWidget(txtPassphrase_);
    layout->addWidget(txtConfirm_);
    layout->addWidget(chkKeep_);
    layout->addWidget(row.Box);
    setMinimumWidth(560);

    connect(chkLock_, &QCheckBox::clicked, this, [this](bool checked) {
        options_.chkLock_Click(checked ? 1 : 0);
        Render();
    });
    connect(chkKeep_, &QCheckBox::clicked, this,
            [this](bool checked) { options_.chkKeep_Click(checked ? 1 : 0); });
    connect(txtPassphrase_, &QLineEdit::textEdited, this,
            [this](const QString& text) { options_.txtPassphrase_Change(FromQt(text)); });
    connect(txtConfirm_, &QLineEdit::textEdited, this,
            [this](const QString& text) { options_.txtConfirm_Change(FromQt(text)); });
    connect(row.cmdOK, &QPushButton::clicked, this, [this] {
        options_.cmdOK_Click();
        Render();
    });
    connect(row.cmdCancel, &QPushButton::clicked, this, [this] { options_.cmdCancel_Click(); });

    options_.Form_Load();
    Render();
}

void LockWindow::reject() {
    options_.cmdCancel_Click();
}

void LockWindow::Render() {
    const LockControls& controls = options_.Controls();
    chkLock_->setChecked(controls.chkLock == 1);
    lblStatement_->setText(ToQt(controls.lblStatement));
    lblPassphrase_->setText(ToQt(controls.lblPassphrase));
    for (QLineEdit* box : {txtPassphrase_, txtConfirm_}) {
        box->setEnabled(controls.PassphraseEnabled);
    }
    // The logic empties the boxes after a refusal; the window follows.
    if (controls.txtPassphrase.empty()) {
        txtPassphrase_->clear();
    }
    if (controls.txtConfirm.empty()) {
        txtConfirm_->clear();
    }
    chkKeep_->setChecked(controls.chkKeep == 1);
    chkKeep_->setEnabled(controls.KeepEnabled && controls.chkLock == 1);
}

} // namespace veyrant
