#include "ui/UtilityWindow.h"

#include "shell/WindowPlacement.h"
#include "ui/QtText.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace veyrant {

namespace {

QPushButton* MakeButton(const char* name, const std::string& caption, const QString& mnemonic,
                        QWidget* parent) {
    QString text = ToQt(caption);
    const auto at = text.indexOf(mnemonic);
    if (at >= 0) {
        text.insert(at, '&');
    }
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setMinimumHeight(button->sizeHint().height() + 10);
    return button;
}

} // namespace

void PlaceUtilityWindow(QWidget& window, double scaleFactor) {
    if (scaleFactor > 1.0) {
        QFont font = window.font();
        font.setPointSizeF(font.pointSizeF() * scaleFactor);
        window.setFont(font);
    }
    window.adjustSize();
    if (const QScreen* screen = window.screen()) {
        const QRect room = screen->availableGeometry();
        const ScreenPoint place =
            CentredPlace(room.width(), room.height(), window.width(), window.height(), 2.0, 1.8);
        window.move(room.left() + place.Left, room.top() + place.Top);
    }
}

UtilityWindow::UtilityWindow(Utility& utility, double scaleFactor, QWidget* parent)
    : QDialog(parent), utility_(utility), scaleFactor_(scaleFactor) {
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

void UtilityWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!placed_) {
        placed_ = true;
        PlaceUtilityWindow(*this, scaleFactor_);
    }
}

} // namespace veyrant
