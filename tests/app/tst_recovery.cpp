// SPDX-License-Identifier: MIT
#include "app/Recovery.h"

#include "app/RecoveryDialog.h"
#include "app/TerminationSignals.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

using Person = void (*)(RecoveryDialog *dialog, TerminationSignals *signalsToEnd);

Q_DECLARE_METATYPE(AfterRecovery)
Q_DECLARE_METATYPE(Person)

namespace {

void ask(RecoveryDialog *dialog)
{
    QTest::keyClick(dialog->findChild<QPushButton *>("btnClearSettings"_s), Qt::Key_Space);
}

void askAndAnswer(RecoveryDialog *dialog, QMessageBox::StandardButton button)
{
    ask(dialog);
    QTest::mouseClick(dialog->findChild<QMessageBox *>()->button(button), Qt::LeftButton);
}

void refuse(RecoveryDialog *dialog, TerminationSignals *)
{
    askAndAnswer(dialog, QMessageBox::No);
    QTest::keyClick(dialog, Qt::Key_Return);
}

void clearAndEscape(RecoveryDialog *dialog, TerminationSignals *)
{
    askAndAnswer(dialog, QMessageBox::Yes);
    QTest::keyClick(dialog, Qt::Key_Escape);
}

void endTheProgram(RecoveryDialog *dialog, TerminationSignals *signalsToEnd)
{
    ask(dialog);
    emit signalsToEnd->received();
}

} // namespace

class tst_Recovery : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_folder->holdSettings();
    }

    void withoutShiftNothingIsShown()
    {
        const TerminationSignals signalsToEnd;
        QCOMPARE(offerRecovery(Qt::ControlModifier | Qt::AltModifier, signalsToEnd), AfterRecovery::GoOn);
    }

    void theDialogDecidesWhatFollows_data()
    {
        QTest::addColumn<Person>("person");
        QTest::addColumn<AfterRecovery>("expected");
        QTest::addColumn<QStringList>("keys"); // that are left
        const QStringList all{"endpoints/Genius"_s, "openGlMethod"_s, "proxy/type"_s};
        addRow("the question is denied", Person(refuse), AfterRecovery::GoOn, all);
        addRow("cleared, and closed otherwise", Person(clearAndEscape), AfterRecovery::StartAnew, QStringList{all[1]});
        addRow("the program is to end meanwhile", Person(endTheProgram), AfterRecovery::End, all);
    }

    void theDialogDecidesWhatFollows()
    {
        QFETCH(Person, person);
        QSettings().setValue("openGlMethod"_s, 3);
        QSettings().setValue("proxy/type"_s, 2);
        QSettings().setValue("endpoints/Genius"_s, "http://127.0.0.1:9"_s);
        const QString damaged = m_folder->write(QSettings().fileName() + QLatin1String(".bad"));
        TerminationSignals signalsToEnd;
        QTimer::singleShot(0, this, [person, &signalsToEnd] {
            auto *dialog = qobject_cast<RecoveryDialog *>(QApplication::activeModalWidget());
            QVERIFY(QTest::qWaitForWindowActive(dialog));
            QVERIFY(!dialog->findChild<QWidget *>("frameOpenGL"_s)->isVisible());
            QVERIFY(!dialog->windowIcon().isNull());
            person(dialog, &signalsToEnd);
        });
        QTEST(offerRecovery(Qt::ShiftModifier, signalsToEnd), "expected");
        QTEST(QSettings().allKeys(), "keys");
        QCOMPARE(QFile::exists(damaged), QSettings().contains("proxy/type"_s));
        QCOMPARE(QSettings().value("openGlMethod"_s).toInt(), 3);
    }

    void aStoreThatCannotBeWrittenIsReported()
    {
        m_folder->write("Quillmarsh/Versewell.conf/in the way"_s);
        RecoveryDialog dialog;
        dialog.show();
        QTest::ignoreMessage(QtWarningMsg, "The settings cannot be stored: their file cannot be written.");
        askAndAnswer(&dialog, QMessageBox::Yes);
        QVERIFY(!dialog.isRestartNeeded());
        QVERIFY(dialog.findChild<QLabel *>("lblCleared"_s)->isVisible());
    }

private:
    std::unique_ptr<TestFolder> m_folder;
};

QTEST_MAIN(tst_Recovery)
#include "tst_recovery.moc"
