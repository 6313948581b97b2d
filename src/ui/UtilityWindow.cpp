#include "ui/UtilityWindow.h"

#include "ui/AccessKeys.h"
#include "ui/QtText.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace veyrant {

namespace {

QPushButton* MakeButton(const char* name, const std::string& caption, const QString& mnemonic,
                        QWidget* parent) {
    auto* button = new QPushButton(WithAccessKey(ToQt(caption), mnemonic), parent);
    button->setObjectName(name);
    button->setMinimumHeight(button->sizeHint().height() + 10);
    return button;
}

} // namespace

UtilityWindow::UtilityWindow(Utility& utility, double scaleFactor, QWidget* parent)
    : UtilityDialog(scaleFactor, parent), utility_(utility) {
    const UtilityControls& controls = utility_.Controls();
    setObjectName("frmUtility");
    setWindowTitle(ToQt(controls.Title));

    auto* note = new QLabel(tr("Each of these windows closes the program when you leave it. "
                               "Start the program again to see your change."),
                            this);
    note->setWordWrap(true);
    cmdOptions_ =
        MakeButton("cmdOptions", controls.cmdOptions.Caption, QStringLiteral("Library"), this);
    cmdResize_ = MakeButton("cmdResize", controls.cmdResize.Caption, QStringLiteral("Size"), this);
    cmdExport_ =
        MakeButton("cmdExport", controls.cmdExport.Caption, QStringLiteral("Export"), this);
    cmdAbout_ = MakeButton("cmdAbout", controls.cmdAbout.Caption, QStringLiteral("About"), this);
    cmdOptions_->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(22, 20, 22, 22);
    layout->setSpacing(10);
    layout->addWidget(note);
    layout->addSpacing(6);
    layout->addWidget(cmdOptions_);
    layout->addWidget(cmdResize_);
    layout->addWidget(cmdExport_);
    layout->addWidget(cmdAbout_);
    setMinimumWidth(360);

    connect(cmdOptions_, &QPushButton::clicked, this, [this] { utility_.cmdOptions_Click(); });
    connect(cmdResize_, &QPushButton::clicked, this, [this] { utility_.cmdResize_Click(); });
    connect(cmdExport_, &QPushButton::clicked, this, [this] { utility_.cmdExport_Click(); });
    connect(cmdAbout_, &QPushButton::clicked, this, [this] { utility_.cmdAbout_Click(); });
}

void UtilityWindow::reject() {
    utility_.Form_Close();
}

} // namespace veyrant
