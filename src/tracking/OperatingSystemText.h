// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

// Where the operating system is asked about itself; tests have other places.
struct SystemSources
{
    QString uname = QStringLiteral("uname");
    QString oslevel = QStringLiteral("oslevel");
    QString shell = QStringLiteral("sh");
    QString releaseFolder = QStringLiteral("/etc"); // of the files that tell distributions apart
    std::chrono::milliseconds patience{1000};       // for each command
};

// The operating system in words, for the user agent: "X11; U; Linux 6.1.0 Debian".
//
// Asks commands, one after another and without waiting for them: the event loop goes on. Whatever still runs when the
// object goes is ended. Main thread only.
class OperatingSystemText : public QObject
{
    Q_OBJECT

public:
    explicit OperatingSystemText(const SystemSources &sources, QObject *parent = nullptr);
    ~OperatingSystemText() override;

    // Begins, the first time; found() follows from the event loop, once.
    void find();

    [[nodiscard]] bool isFound() const { return m_isFound; }
    // Empty until it is found.
    [[nodiscard]] QString text() const { return m_text; }

signals:
    void found();

private:
    // What a command wrote, trimmed: empty when it did not end in time, nothing when it could not be started.
    using Output = std::optional<QString>;
    using Next = std::function<void(const Output &)>;

    void run(const QString &program, const QStringList &arguments, const Next &next);
    void askRelease();
    void askDistribution();
    void finish(const QString &distribution);

    const SystemSources m_sources;
    bool m_isBegun = false;
    bool m_isFound = false;
    QString m_system = QStringLiteral("Linux");
    QString m_release;
    QString m_text;
};
