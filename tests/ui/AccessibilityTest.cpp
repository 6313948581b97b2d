// Every window as a screen reader and a keyboard user meet it: each control says what it is, and
// Tab walks the dialogs' commands in reading order.

#include "WriteWindowFixture.h"
#include "app/Utility.h"
#include "shell/Resize.h"
#include "storage/Options.h"
#include "ui/BackWindow.h"
#include "ui/BannerWindow.h"
#include "ui/ExportEditorWindow.h"
#include "ui/OptionsWindow.h"
#include "ui/PrintFlow.h"
#include "ui/QtWindowLayer.h"
#include "ui/ReaderWindow.h"
#include "ui/ResizeWindow.h"
#include "ui/UtilityWindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QtTest>
#include <memory>

using namespace veyrant;

using namespace Qt::StringLiterals;

namespace {

// Every window of the program over one fresh folder, the Write window shown and started.
struct Program : WriteWindow {
    Utility Utilities{Layer, "4.1.26.11.22", "2026", [] {}};
    Resize DisplaySize{App.UserSettings, App.UserPreferences, Layer, [] {}};
    Options LibraryOptions{Library, App.UserSettings, Layer, [] {}, [] {}};
};

QString Spoken(QWidget* widget, QAccessible::Text text) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
    return face == nullptr ? QString() : face->text(text);
}

bool IsControl(const QWidget* widget) {
    return qobject_cast<const QAbstractButton*>(widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
           qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QComboBox*>(widget) != nullptr;
}

// The controls of a window that a screen reader would give no name.
QStringList Unnamed(QWidget& window) {
    QStringList unnamed;
    if (Spoken(&window, QAccessible::Name).isEmpty()) {
        unnamed << window.objectName();
    }
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (IsControl(widget) && Spoken(widget, QAccessible::Name).trimmed().isEmpty()) {
            unnamed << u"%1 (%2)"_s.arg(widget->objectName(), widget->metaObject()->className());
        }
    }
    return unnamed;
}

// The controls that the Tab key visits from the one in focus, by name, once round.
QStringList TabOrder() {
    QStringList order;
    for (int press = 0; press < 20; ++press) {
        const QString name = QApplication::focusWidget()->objectName();
        if (order.contains(name)) {
            break;
        }
        order << name;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return order;
}

} // namespace

class AccessibilityTest : public QObject {
    Q_OBJECT

private slots:
    void everyControlOfEveryWindowHasANameAndTabReadsInOrder() {
        Program program;
        MirrorWindow& write = *program.Window;
        BannerWindow banner(program.Layer);
        banner.show();
        UtilityWindow utilities(program.Utilities, 1.0);
        utilities.show();
        ResizeWindow displaySize(program.DisplaySize, 1.0);
        displaySize.show();
        OptionsWindow options(program.LibraryOptions);
        options.show();
        SaveFolder folders;
        ExportEditorWindow exported(program.Layer, folders, program.App.Spelling,
                                    u"Dialogue text"_s, u"Dialogue.txt"_s);
        const auto about = BuildMessageBox(
            {"About the Veyrant Sagrel Program", AboutText("4.1.26.11.22", "2026")});
        QPrinter printer;
        const auto preview = BuildPrintPreview(printer, &write);
        program.App.Back.Load();
        BackWindow backdrop(program.App.Back);

        // The Read window over the Dialogue Library, which needs no fixed library loaded.
        program.App.Links.BeginOpening();
        program.App.Links.OpenLibrary(LibraryId::Dialogue);
        ReaderWindow reader(program.App, *program.App.Read);
        reader.show();
        reader.Render();

        const std::vector<QWidget*> windows = {&write,        &banner,   &utilities,  &displaySize,
                                               &options,      &exported, about.get(), &reader,
                                               preview.get(), &backdrop};
        for (QWidget* window : windows) {
            QVERIFY2(Unnamed(*window).isEmpty(),
                     qPrintable(window->windowTitle() + ": " + Unnamed(*window).join(", ")));
        }
        // The backdrop's hint shows only under a moving pointer; a screen reader tells it always.
        QCOMPARE(Spoken(&backdrop, QAccessible::Description), QString(Backdrop::HintText));
        // The hover help is spoken; a screen reader tells the key that presses a button, as the
        // underlined letter shows it.
        const std::tuple<MirrorControl, QString, QString> spoken[] = {
            {MirrorControl::txtMirror, "Entry",
             "Type a question or a statement, then press 'Enter'."},
            {MirrorControl::cmdHelp, "Help",
             "Open the Information Library for instructions and information on the program. "
             "Right-click to open the Utilities window."},
        };
        for (const auto& [control, name, description] : spoken) {
            QCOMPARE(Spoken(write.Widget(control), QAccessible::Name), name);
            QCOMPARE(Spoken(write.Widget(control), QAccessible::Description), description);
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(write.Widget(MirrorControl::cmdHelp))
                     ->actionInterface()
                     ->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
                 QStringList{"Alt+H"});
        // The Write window's controls in the state of a Dialogue under way. The description
        // follows the button's state, as the hover help does; the instruction line's follows its
        // words.
        QTest::mouseClick(write.Widget(MirrorControl::cmdConverse), Qt::LeftButton);
        QVERIFY2(Unnamed(write).isEmpty(), qPrintable(Unnamed(write).join(", ")));
        QCOMPARE(Spoken(write.Widget(MirrorControl::cmdConverse), QAccessible::Description),
                 QString("Click 'Cancel' to exit Converse and reset to New Dialogue."));
        QWidget* note = write.Widget(MirrorControl::txtNote);
        QCOMPARE(Spoken(note, QAccessible::Name), QString("Instruction"));
        QCOMPARE(Spoken(note, QAccessible::Description),
                 QString("Type your question or statement. Click 'Rewrite' to erase the text. "
                         "Press 'Enter' for the Sagrel response."));

        // Tab walks the dialogs' commands in reading order.
        struct Case {
            QWidget* Window;
            QStringList Order;
        };
        const std::vector<Case> cases = {
            {&utilities, {"cmdOptions", "cmdResize", "cmdExport", "cmdAbout"}},
            {&displaySize, {"Option1", "chkSpelling", "cmdOK", "cmdCancel"}},
            // An empty Library has nothing to clean, and its button is passed over.
            {&options, {"txtSetSave", "txtSetDays", "Check1", "cmdOK", "cmdCancel"}},
        };
        for (const Case& c : cases) {
            QApplication::setActiveWindow(c.Window);
            QVERIFY(QTest::qWaitForWindowActive(c.Window));
            // The round is read from the first control on, wherever the focus began.
            QStringList order = TabOrder();
            const auto first = order.indexOf(c.Order.front());
            QVERIFY2(first >= 0, qPrintable(order.join(", ")));
            order = order.mid(first) + order.first(first);
            QCOMPARE(order, c.Order);
        }
    }
};

QTEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
