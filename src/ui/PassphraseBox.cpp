#include "ui/PassphraseBox.h"

#include "ui/QtText.h"

#include <QInputDialog>
#include <QLineEdit>

namespace veyrant {

std::optional<std::string> AskPassphraseBox(const std::string& prompt) {
    QInputDialog box;
    box.setObjectName("frmPassphrase");
    box.setWindowTitle(QInputDialog::tr("Veyrant Sagrel Library Locked"));
    box.setLabelText(ToQt(prompt));
    box.setTextEchoMode(QLineEdit::Password);
    box.setMinimumWidth(420);
    if (box.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    QString typed = box.textValue();
    // A character with no Windows-1252 code cannot be in a passphrase the program set.
    auto passphrase = Utf16ToCp1252(typed.toStdU16String()).value_or(std::string());
    typed.fill(QChar(u' '));
    return passphrase;
}

} // namespace veyrant
