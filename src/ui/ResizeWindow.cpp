#include "ui/ResizeWindow.h"

#include "ui/AccessKeys.h"
#include "ui/OkCancelButtons.h"
#include "ui/QtText.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace veyrant {

ResizeWindow::ResizeWindow(Resize& resize, double scaleFactor, QWidget* parent)
    : UtilityDialog(scaleFactor, parent), resize_(resize) {
    const ResizeControls& controls = resize_.Controls();
    setObjectName("frmResize");
    setWindowTitle(ToQt(controls.Title));

    auto* note = new QLabel(tr("Choose the size of the Veyrant Sagrel windows and whether misspelt "
                               "words are marked. Your choices take effect when you start the "
                               "program again."),
                            this);
    note->setWordWrap(true);

    auto* sizes = new QGroupBox(tr("&Window size"), this);
    auto* sizesLayout = new QVBoxLayout(sizes);
    sizesLayout->setSpacing(8);
    for (std::size_t index = 0; index < controls.Choices.size(); ++index) {
        const ResizeOption& choice = controls.Choices[index];
        // The captions share their first letters, so the keyboard reaches them through the group's
        // key and the arrow keys.
        auto* button = new QRadioButton(WithAccessKey(ToQt(choice.Caption), {}), sizes);
        button->setObjectName(QString::fromStdString(choice.Name));
        sizesLayout->addWidget(button);
        choices_[index] = button;
        const int value = choice.Value;
        connect(button, &QRadioButton::clicked, this, [this, value] {
            resize_.Option_Click(value);
            Render();
        });
    }

    // The caption's first letter is free among the window's access keys.
    const QString spelling = ToQt(controls.chkSpelling.Caption);
    chkSpelling_ = new QCheckBox(WithAccessKey(spelling, spelling.left(1)), this);
    chkSpelling_->setObjectName(QString::fromStdString(controls.chkSpelling.Name));
    connect(chkSpelling_, &QCheckBox::clicked, this, [this](bool checked) {
        resize_.chkSpelling_Click(checked);
        Render();
    });

    const OkCancelButtons row = MakeOkCancelButtons(this);
    QDialogButtonBox* buttons = row.Box;
    cmdOK_ = row.cmdOK;
    cmdCancel_ = row.cmdCancel;

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setSpacing(14);
    layout->addWidget(note);
    layout->addWidget(sizes);
    layout->addWidget(chkSpelling_);
    layout->addWidget(buttons);
    setMinimumWidth(420);

    connect(cmdOK_, &QPushButton::clicked, this, [this] { resize_.cmdOK_Click(); });
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { reject(); });
}

void ResizeWindow::reject() {
    resize_.cmdCancel_Click();
    Render();
}

void ResizeWindow::FirstShown() {
    resize_.Form_Load();
    Render();
    for (QRadioButton* choice : choices_) {
        if (choice->isChecked()) {
            choice->setFocus(Qt::OtherFocusReason);
        }
    }
}

void ResizeWindow::Render() {
    const ResizeControls& controls = resize_.Controls();
    for (std::size_t index = 0; index < controls.Choices.size(); ++index) {
        choices_[index]->setChecked(controls.Choices[index].Checked);
    }
    chkSpelling_->setChecked(controls.chkSpelling.Checked);
}

} // namespace veyrant
