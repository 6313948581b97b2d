#include "ui/DialoguePrinter.h"

#include "printing/PrintLayout.h"
#include "ui/QtPageDevice.h"
#include "ui/QtText.h"

#include <QPageSize>
#include <QPainter>
#include <QPrinter>

namespace veyrant {

void PreparePrinter(QPrinter& printer, const PrintRequest& request) {
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setFullPage(true);
    printer.setDocName(ToQt(request.Title));
}

std::optional<int> PrintDialogueOn(QPrinter& printer, const PrintRequest& request,
                                   const QString& face) {
    QPainter painter;
    if (!painter.begin(&printer)) {
        return std::nullopt;
    }
    QtPageDevice device(painter, printer, face);
    const int pages = LayOutDialogue(device, request);
    if (!device.Succeeded()) {
        return std::nullopt;
    }
    return pages;
}

} // namespace veyrant
