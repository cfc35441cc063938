// SPDX-License-Identifier: MIT
#include "app/Recovery.h"
#include "support/TestTable.h"

#include "app/RecoveryDialog.h"
#include "app/TerminationSignals.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using Person = void (*)(RecoveryDialog *dialog, TerminationSignals *signalsToEnd);

Q_DECLARE_METATYPE(AfterRecovery)
Q_DECLARE_METATYPE(Person)

namespace {

QPushButton *clearButton(RecoveryDialog *dialog)
{
    return dialog->findChild<QPushButton *>("btnClearSettings"_s);
}

void answer(RecoveryDialog *dialog, QMessageBox::StandardButton button)
{
    QTest::keyClick(clearButton(dialog), Qt::Key_Space);
    auto *question = dialog->findChild<QMessageBox *>();
    QTest::mouseClick(question->button(button), Qt::LeftButton);
}

void pressOk(RecoveryDialog *dialog, TerminationSignals *)
{
    QTest::keyClick(dialog, Qt::Key_Return);
}

void refuse(RecoveryDialog *dialog, TerminationSignals *)
{
    answer(dialog, QMessageBox::No);
    QTest::keyClick(dialog, Qt::Key_Return);
}

void clear(RecoveryDialog *dialog, TerminationSignals *)
{
    answer(dialog, QMessageBox::Yes);
    QTest::keyClick(dialog, Qt::Key_Return);
}

void clearAndEscape(RecoveryDialog *dialog, TerminationSignals *)
{
    answer(dialog, QMessageBox::Yes);
    QTest::keyClick(dialog, Qt::Key_Escape);
}

void endTheProgram(RecoveryDialog *dialog, TerminationSignals *signalsToEnd)
{
    QTest::keyClick(clearButton(dialog), Qt::Key_Space);
    emit signalsToEnd->received();
}

} // namespace

class tst_Recovery : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void withoutShiftNothingIsShown();
    void theDialogDecidesWhatFollows_data();
    void theDialogDecidesWhatFollows();
    void aStoreThatCannotBeWrittenIsReported();

private:
    std::unique_ptr<QTemporaryDir> m_settingsFolder;
};

void tst_Recovery::init()
{
    m_settingsFolder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsFolder->path());
    QCoreApplication::setOrganizationName("Quillmarsh"_s);
    QCoreApplication::setApplicationName("Versewell"_s);
    QCoreApplication::setApplicationVersion("1.5.6"_s);
}

void tst_Recovery::withoutShiftNothingIsShown()
{
    TerminationSignals signalsToEnd;
    bool shown = false;
    const QObject context;
    QTimer::singleShot(0, &context, [&shown] {
        shown = true;
        QApplication::activeModalWidget()->close();
    });
    QCOMPARE(offerRecovery(Qt::ControlModifier | Qt::AltModifier, signalsToEnd), AfterRecovery::GoOn);
    QVERIFY(!shown);
}

void tst_Recovery::theDialogDecidesWhatFollows_data()
{
    QTest::addColumn<Person>("person");
    QTest::addColumn<AfterRecovery>("expected");
    QTest::addColumn<bool>("cleared");
    addRow("OK alone", Person(pressOk), AfterRecovery::GoOn, false);
    addRow("the question is denied", Person(refuse), AfterRecovery::GoOn, false);
    addRow("the settings are cleared", Person(clear), AfterRecovery::StartAnew, true);
    addRow("cleared, and closed otherwise", Person(clearAndEscape), AfterRecovery::StartAnew, true);
    addRow("the program is to end meanwhile", Person(endTheProgram), AfterRecovery::End, false);
}

void tst_Recovery::theDialogDecidesWhatFollows()
{
    QFETCH(Person, person);
    QFETCH(bool, cleared);
    const QVariantMap kept{{"openGlMethod"_s, 3}};
    QVariantMap all = kept;
    all.insert("proxy/type"_s, 2);
    all.insert("endpoints/Genius"_s, "http://127.0.0.1:9"_s);
    for (auto entry = all.cbegin(); entry != all.cend(); ++entry)
        QSettings().setValue(entry.key(), entry.value());
    TerminationSignals signalsToEnd;
    QTimer::singleShot(0, this, [person, &signalsToEnd] {
        auto *dialog = qobject_cast<RecoveryDialog *>(QApplication::activeModalWidget());
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QVERIFY(!dialog->findChild<QWidget *>("frameOpenGL"_s)->isVisible());
        QVERIFY(!dialog->windowIcon().isNull());
        person(dialog, &signalsToEnd);
    });
    QTEST(offerRecovery(Qt::ShiftModifier, signalsToEnd), "expected");
    QVariantMap left;
    for (const QString &key : QSettings().allKeys())
        left.insert(key, QSettings().value(key).toString());
    QCOMPARE(left.keys(), (cleared ? kept : all).keys());
    QCOMPARE(left.value("openGlMethod"_s).toInt(), 3);
}

void tst_Recovery::aStoreThatCannotBeWrittenIsReported()
{
    QVERIFY(QDir(m_settingsFolder->path()).mkpath("Quillmarsh/Versewell.conf/in the way"_s));
    RecoveryDialog dialog;
    dialog.show();
    QTest::ignoreMessage(QtWarningMsg, "The settings cannot be stored: their file cannot be written.");
    answer(&dialog, QMessageBox::Yes);
    QVERIFY(!dialog.isRestartNeeded());
    QVERIFY(dialog.findChild<QLabel *>("lblCleared"_s)->isVisible());
}

QTEST_MAIN(tst_Recovery)
#include "tst_recovery.moc"
