#include "ui/ExportWindow.h"

#include "ui/QtText.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace veyrant {

ExportWindow::ExportWindow(ExportLibrary& logic, double scaleFactor, QWidget* parent)
    : UtilityDialog(scaleFactor, parent), logic_(logic), lblStatus_(new QLabel(this)),
      prgExport_(new QProgressBar(this)), cmdCancel_(new QPushButton(this)) {
    setObjectName("frmExport");
    setWindowTitle(ToQt(logic_.Controls().Title));
    lblStatus_->setObjectName("lblStatus");
    lblStatus_->setWordWrap(true);
    prgExport_->setObjectName("prgExport");
    cmdCancel_->setObjectName("cmdCancel");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(22, 20, 22, 22);
    layout->setSpacing(10);
    layout->addWidget(lblStatus_);
    layout->addWidget(prgExport_);
    layout->addWidget(cmdCancel_, 0, Qt::AlignRight);
    setMinimumWidth(420);
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { logic_.cmdCancel_Click(); });
    logic_.Changed = [this] { Render(); };
    Render();
}

void ExportWindow::Render() {
    const ExportControls& controls = logic_.Controls();
    lblStatus_->setText(ToQt(controls.lblStatus));
    prgExport_->setMaximum(controls.prgExportMax);
    prgExport_->setValue(controls.prgExport);
    cmdCancel_->setText(ToQt(controls.cmdCancelCaption));
    cmdCancel_->setEnabled(controls.cmdCancelEnabled);
}

void ExportWindow::reject() {
    logic_.Form_Close();
}

void ExportWindow::showEvent(QShowEvent* event) {
    UtilityDialog::showEvent(event);
    // Each showing is one export, from the Utilities; it starts after the show has finished, so
    // that the window stands behind the folder dialog.
    if (!event->spontaneous()) {
        QTimer::singleShot(0, this, [this] { logic_.Form_Activate(); });
    }
}

} // namespace veyrant
