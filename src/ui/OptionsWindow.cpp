#include "ui/OptionsWindow.h"

#include "core/Cp1252.h"
#include "ui/AccessKeys.h"
#include "ui/OkCancelButtons.h"
#include "ui/QtText.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace veyrant {

namespace {

// The boxes take digits only, so every character has its Windows-1252 code.
std::string FromQt(const QString& text) {
    return Utf16ToCp1252(text.toStdU16String()).value_or(std::string());
}

QLineEdit* MakeLimitBox(const char* name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setMaxLength(2);
    box->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,2}")), box));
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 16);
    return box;
}

void ShowText(QLabel* label, const QString& text) {
    if (label->text() != text) {
        label->setText(text);
    }
}

} // namespace

OptionsWindow::OptionsWindow(Options& options, QWidget* parent,
                             std::function<void(QWidget*)> openLock)
    : QDialog(parent), options_(options) {
    setObjectName("frmOptions");
    setWindowTitle(tr("Veyrant Sagrel Library Options"));

    Label3_ = new QLabel(this);
    Label3_->setObjectName("Label3");
    Label3_->setWordWrap(true);

    auto* limits = new QGroupBox(tr("Library limits"), this);
    auto* form = new QFormLayout(limits);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    txtSetSave_ = MakeLimitBox("txtSetSave", limits);
    txtSetDays_ = MakeLimitBox("txtSetDays", limits);
    lblSetSave_ = new QLabel(limits);
    lblSetSave_->setObjectName("lblSetSave");
    lblSetSave_->setBuddy(txtSetSave_);
    lblSetDays_ = new QLabel(limits);
    lblSetDays_->setObjectName("lblSetDays");
    lblSetDays_->setBuddy(txtSetDays_);
    form->addRow(lblSetSave_, txtSetSave_);
    form->addRow(lblSetDays_, txtSetDays_);
    Check1_ = new QCheckBox(tr("Library &Guest Mode: no Dialogues are saved or retrieved"), limits);
    Check1_->setObjectName("Check1");
    form->addRow(Check1_);

    auto* clean = new QGroupBox(tr("Clean the Library"), this);
    auto* cleanRow = new QHBoxLayout(clean);
    Label4_ = new QLabel(clean);
    Label4_->setObjectName("Label4");
    Label4_->setWordWrap(true);
    cmdClean_ = new QPushButton(tr("C&lean Library"), clean);
    cmdClean_->setObjectName("cmdClean");
    cmdClean_->setAutoDefault(false);
    cleanRow->addWidget(Label4_, 1);
    cleanRow->addWidget(cmdClean_, 0, Qt::AlignVCenter);

    const OkCancelButtons row = MakeOkCancelButtons(this);
    QDialogButtonBox* buttons = row.Box;
    cmdOK_ = row.cmdOK;
    cmdCancel_ = row.cmdCancel;

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setSpacing(14);
    layout->addWidget(Label3_);
    layout->addWidget(limits);
    layout->addWidget(clean);
    if (openLock) {
        auto* lock = new QGroupBox(tr("Lock the Library"), this);
        auto* lockRow = new QHBoxLayout(lock);
        auto* lockText = new QLabel(
            tr("Keep every Dialogue encrypted under a passphrase, or change or remove it."), lock);
        lockText->setWordWrap(true);
        auto* cmdLock = new QPushButton(tr("Loc&k Library..."), lock);
        cmdLock->setObjectName("cmdLock");
        cmdLock->setAutoDefault(false);
        lockRow->addWidget(lockText, 1);
        lockRow->addWidget(cmdLock, 0, Qt::AlignVCenter);
        layout->addWidget(lock);
        connect(cmdLock, &QPushButton::clicked, this, [this, openLock] { openLock(this); });
    }
    layout->addWidget(buttons);
    setMinimumWidth(560);

    connect(txtSetSave_, &QLineEdit::textEdited, this, [this](const QString& text) {
        options_.txtSetSave_Change(FromQt(text));
        Render();
    });
    connect(txtSetDays_, &QLineEdit::textEdited, this, [this](const QString& text) {
        options_.txtSetDays_Change(FromQt(text));
        Render();
    });
    connect(Check1_, &QCheckBox::clicked, this, [this](bool checked) {
        options_.Check1_Click(checked ? 1 : 0);
        Render();
    });
    connect(cmdOK_, &QPushButton::clicked, this, [this] {
        options_.cmdOK_Click();
        Render();
    });
    connect(cmdCancel_, &QPushButton::clicked, this, [this] {
        options_.cmdCancel_Click();
        Render();
    });
    connect(cmdClean_, &QPushButton::clicked, this, [this] {
        options_.cmdClean_Click();
        Render();
    });
}

void OptionsWindow::reject() {
    options_.cmdCancel_Click();
    Render();
}

void OptionsWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!loaded_) {
        loaded_ = true;
        options_.Form_Load();
        Render();
    }
}

void OptionsWindow::Render() {
    const OptionsControls& controls = options_.Controls();
    if (txtSetSave_->text() != ToQt(controls.txtSetSave.Text)) {
        txtSetSave_->setText(ToQt(controls.txtSetSave.Text));
    }
    if (txtSetDays_->text() != ToQt(controls.txtSetDays.Text)) {
        txtSetDays_->setText(ToQt(controls.txtSetDays.Text));
    }
    Check1_->setChecked(controls.Check1 == 1);
    ShowText(Label3_, ToQt(controls.Label3.Caption));
    ShowText(Label4_, ToQt(controls.Label4.Caption));
    ShowText(lblSetSave_,
             WithAccessKey(ToQt(controls.lblSetSave.Caption), QStringLiteral("files")));
    ShowText(lblSetDays_, WithAccessKey(ToQt(controls.lblSetDays.Caption), QStringLiteral("days")));
    cmdOK_->setEnabled(controls.cmdOK.Enabled);
    cmdCancel_->setEnabled(controls.cmdCancel.Enabled);
    cmdClean_->setEnabled(controls.cmdClean.Enabled);
    if (controls.FocusMoves != focusMoves_) {
        focusMoves_ = controls.FocusMoves;
        if (QWidget* focus = FocusWidget(controls.Focus)) {
            focus->setFocus(Qt::OtherFocusReason);
        }
    }
}

QWidget* OptionsWindow::FocusWidget(OptionsControl control) const {
    switch (control) {
    case OptionsControl::None:
        return nullptr;
    case OptionsControl::txtSetSave:
        return txtSetSave_;
    case OptionsControl::txtSetDays:
        return txtSetDays_;
    case OptionsControl::Check1:
        return Check1_;
    case OptionsControl::cmdOK:
        return cmdOK_;
    case OptionsControl::cmdCancel:
        return cmdCancel_;
    case OptionsControl::cmdClean:
        return cmdClean_;
    }
    return nullptr;
}

} // namespace veyrant
