// SPDX-License-Identifier: MIT
#include "tracking/OperatingSystemText.h"

#include <QFileInfo>
#include <QProcess>
#include <QTimer>

namespace {

struct Distribution
{
    const char *file;
    const char *name;    // null: what the command says
    const char *command; // %1 is the folder of the file
    const char *end;     // is put after what the command says
};

// The first one whose file is there counts. The blank that one command lacks before its second bar is left out on
// purpose.
constexpr Distribution distributions[] = {
    {"redhat-release", "RedHat", nullptr, nullptr},
    {"UnitedLinux-release", nullptr, R"(cat %1/UnitedLinux-release | tr '\n' ' ' | sed s/VERSION.*//)", " "},
    {"SUSE-release", nullptr, R"(cat %1/SUSE-release | tr '\n' ' '| sed s/VERSION.*//)", ""},
    {"debian_version", "Debian", nullptr, nullptr},
    {"mandrake-release", "Mandrake", nullptr, nullptr},
    {"lsb-release", "Ubuntu", nullptr, nullptr},
};

} // namespace

OperatingSystemText::OperatingSystemText(const SystemSources &sources, QObject *parent)
    : QObject(parent)
    , m_sources(sources)
{
}

OperatingSystemText::~OperatingSystemText()
{
    for (QProcess *process : findChildren<QProcess *>()) {
        process->disconnect(this); // nothing follows from its end any more
        process->kill();
        process->waitForFinished();
    }
}

void OperatingSystemText::run(const QString &program, const QStringList &arguments, const Next &next)
{
    auto *process = new QProcess(this);
    const auto settle = [this, process, next](const Output &output) {
        process->disconnect(this);
        next(output);
    };
    const auto finished = qOverload<int, QProcess::ExitStatus>(&QProcess::finished);
    connect(process, &QProcess::errorOccurred, this, [process, settle](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        process->deleteLater();
        settle({});
    });
    connect(process, finished, this,
            [process, settle] { settle(QString::fromLocal8Bit(process->readAllStandardOutput()).trimmed()); });
    connect(process, finished, process, &QObject::deleteLater);
    auto *patience = new QTimer(process);
    patience->setSingleShot(true);
    connect(patience, &QTimer::timeout, this, [process, settle] {
        process->kill();
        settle(QString());
    });
    patience->start(m_sources.patience);
    process->start(program, arguments, QIODevice::ReadOnly);
}

void OperatingSystemText::find()
{
    if (m_isBegun)
        return;
    m_isBegun = true;
    run(m_sources.uname, {QStringLiteral("-s")}, [this](const Output &system) {
        if (system)
            m_system = *system == QLatin1String("SunOS") ? QStringLiteral("Solaris") : *system;
        askRelease();
    });
}

void OperatingSystemText::askRelease()
{
    const bool isAix = m_system == QLatin1String("AIX");
    run(isAix ? m_sources.oslevel : m_sources.uname, {QStringLiteral("-r")}, [this, isAix](const Output &release) {
        m_release = release.value_or(QString());
        if (isAix)
            m_release.prepend(QLatin1String("oslevel "));
        askDistribution();
    });
}

void OperatingSystemText::askDistribution()
{
    if (m_system != QLatin1String("Linux")) {
        finish({});
        return;
    }
    for (const Distribution &distribution : distributions) {
        if (!QFileInfo::exists(m_sources.releaseFolder + QLatin1Char('/') + QLatin1String(distribution.file)))
            continue;
        if (distribution.name) {
            finish(QLatin1String(distribution.name));
            return;
        }
        const QString command = QString::fromLatin1(distribution.command).arg(m_sources.releaseFolder);
        run(m_sources.shell, {QStringLiteral("-c"), command}, [this, end = distribution.end](const Output &words) {
            finish(words.value_or(QString()) + QLatin1String(end));
        });
        return;
    }
    finish({});
}

void OperatingSystemText::finish(const QString &distribution)
{
    QStringList parts{m_system, m_release, distribution};
    parts.removeAll(QString());
    m_text = QLatin1String("X11; U; ") + parts.join(QLatin1Char(' '));
    m_isFound = true;
    emit found();
}
