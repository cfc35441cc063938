// SPDX-License-Identifier: MIT
#include "tracking/OperatingSystemText.h"

#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QFile>
#include <QSignalSpy>

class tst_OperatingSystemText : public QObject
{
    Q_OBJECT

private slots:
    void theSystemSaysWhatItIs_data()
    {
        addTextColumns("uname", "files", "text");
        const char *linux = "[ $1 = -s ] && echo Linux || echo ' 6.1 '";
        addRow("no file that is known", linux, "os-release", "X11; U; Linux 6.1");
        addRow("the first file counts", linux, "debian_version redhat-release", "X11; U; Linux 6.1 RedHat");
        addRow("Debian before Ubuntu", linux, "lsb-release debian_version", "X11; U; Linux 6.1 Debian");
        addRow("Ubuntu", linux, "lsb-release", "X11; U; Linux 6.1 Ubuntu");
        addRow("words up to the version", linux, "SUSE-release", "X11; U; Linux 6.1 Suse 9");
        addRow("words with a blank at the end", linux, "UnitedLinux-release", "X11; U; Linux 6.1 Suse 9 ");
        addRow("another system", "[ $1 = -s ] && echo SunOS || echo 5.11", "debian_version", "X11; U; Solaris 5.11");
        addRow("a release from elsewhere", "echo AIX", "debian_version", "X11; U; AIX oslevel 7.2");
        addRow("no answer to one question", "[ $1 = -r ] && exec sleep 30; echo Linux", "debian_version",
               "X11; U; Linux Debian");
        addRow("no answer at all", "exec sleep 30", "debian_version", "X11; U; ");
        addRow("no such command", "", "debian_version", "X11; U; Linux Debian");
    }

    void theSystemSaysWhatItIs()
    {
        QFETCH(QString, uname);
        QFETCH(QString, files);
        SystemSources sources;
        sources.uname = command("uname", uname);
        sources.oslevel = command("oslevel", "[ $1 = -r ] && echo 7.2"_s);
        sources.releaseFolder = m_folder.path("etc"_s);
        sources.patience = std::chrono::milliseconds(300);
        m_folder.write("etc/other"_s);
        for (const QString &file : files.split(QLatin1Char(' ')))
            m_folder.write("etc/"_s + file, "Suse\n9\nVERSION = 9\n");
        OperatingSystemText system(sources);
        QSignalSpy found(&system, &OperatingSystemText::found);
        system.find();
        system.find();
        QVERIFY(!system.isFound());
        QTRY_VERIFY(system.isFound());
        QTEST(system.text(), "text");
        QCOMPARE(found.size(), 1);
        QVERIFY(QDir(sources.releaseFolder).removeRecursively());
    }

private:
    // A command with this script; one that is not there for an empty script.
    QString command(const char *name, const QString &script) const
    {
        if (script.isEmpty())
            return m_folder.path("nowhere"_s);
        QString path = m_folder.write(QLatin1String(name), "#!/bin/sh\n" + script.toUtf8() + "\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

    const TestFolder m_folder{};
};

QTEST_GUILESS_MAIN(tst_OperatingSystemText)
#include "tst_operatingsystemtext.moc"
