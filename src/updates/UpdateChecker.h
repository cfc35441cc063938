// SPDX-License-Identifier: MIT
#pragma once

#include "network/AccessManager.h"
#include "updates/PartialDownload.h"
#include "updates/ReleasedVersion.h"
#include "updates/SetupInstallation.h"
#include "updates/UpdateEnvironment.h"
#include "updates/UpdateFolder.h"

#include <QAction>
#include <QDateTime>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>
#include <utility>

// Asks the maker's site for a newer version, downloads its setup file and hands it to the desktop, as a state machine:
//
//     Normal -> Checking -> UpToDate | UpdateAvailable | InstallAvailable | Error
//     UpdateAvailable -> Downloading -> InstallAvailable | Error
//
// A new check may begin in every state and drops what is under way. A forced check goes on through download and
// installation by itself. Main thread only; one request is under way at a time. When to check, and whether a version is
// offered at all, is not decided here.
//
// The site is not trusted: its certificate is not even looked at. A setup file is opened only after its signature was
// found to be the maker's, for this version, which must be newer than the program.
class UpdateChecker : public QObject
{
    Q_OBJECT
    Q_PROPERTY(States state READ state NOTIFY stateChanged)
    Q_PROPERTY(QString error READ error NOTIFY errorMessageChanged)
    Q_PROPERTY(QString stateName READ stateName NOTIFY stateChanged)
    Q_PROPERTY(QDateTime lastCheck READ lastCheck NOTIFY stateChanged)
    Q_PROPERTY(QString latestVersion READ latestVersion NOTIFY stateChanged)

public:
    enum States { Normal, Checking, UpdateAvailable, Downloading, InstallAvailable, Error, UpToDate };
    Q_ENUM(States)

    using Question = SetupInstallation::Question;

    explicit UpdateChecker(const UpdateEnvironment &environment = {}, QObject *parent = nullptr);
    ~UpdateChecker() override;

    [[nodiscard]] States state() const { return m_state; }
    // "checking", "updateFound", "downloading", "restart", "error"; empty for the other states.
    [[nodiscard]] QString stateName() const;
    // For users; of the last error, empty from the next check on.
    [[nodiscard]] QString error() const { return m_error; }
    // When the site last answered a check, also with an error; invalid before the first answer.
    [[nodiscard]] QDateTime lastCheck() const { return m_lastCheck; }
    // Empty when no versions are known.
    [[nodiscard]] QString latestVersion() const;
    // As the last answer that was understood had them, oldest first.
    [[nodiscard]] const ReleasedVersions &versions() const { return m_versions; }
    // Of the setup file, in bytes; 0 when the site does not say.
    [[nodiscard]] qint64 downloadSize() const { return m_downloadSize; }
    // Of the setup file, in bytes, with what an earlier download left.
    [[nodiscard]] qint64 downloaded() const { return m_downloaded; }
    // Whether the setup file is being checked or opened, which may take seconds.
    [[nodiscard]] bool isInstalling() const { return m_installation.isBusy(); }
    // Whether the user has agreed to leave and the setup file is being opened. Nothing that could be lost may be begun
    // then.
    [[nodiscard]] bool isOpening() const { return m_installation.isOpening(); }
    [[nodiscard]] bool isQuiet() const { return m_quiet; }

    // "Download update", "Cancel downloading", "Exit and install update". Visible in the states in which they work;
    // they belong to the checker.
    [[nodiscard]] QAction *downloadAction() { return &m_downloadAction; }
    [[nodiscard]] QAction *abortAction() { return &m_abortAction; }
    [[nodiscard]] QAction *installAction() { return &m_installAction; }

    // While quiet, a check that cannot reach the site ends as UpToDate. Answers that make no sense are errors all the
    // same.
    void setQuiet(bool quiet) { m_quiet = quiet; }
    // Asked when the setup file has proved to be the maker's, and before it is opened. None: nothing is asked.
    void setBeforeInstall(Question question) { m_installation.setQuestion(std::move(question)); }
    // For the requests from now on.
    void useProxy(const QNetworkProxy &proxy);

public slots:
    void check() { check(false); }
    void check(bool forced);
    // In UpdateAvailable, and after a download that failed. Ends in Error at once when there is no key or no signature
    // with which the file could ever be installed.
    void download();
    // In InstallAvailable. Checks the setup file, asks the user, and opens it if it is still the file that was checked.
    // Ends with exitRequest() or in Error, as a rule from the event loop; waits in InstallAvailable, where it may be
    // called again, as long as the user does not agree.
    void install();
    // Drops what install() began, at the latest after a block of the file; the state stays.
    void abortInstall() { m_installation.abort(); }
    // In Downloading; what has come is kept for the next time.
    void abortDownload();
    // In Checking; the state becomes Normal.
    void abortCheck();

signals:
    // The setup file was handed to the desktop, and the program should end.
    void exitRequest();
    void stateChanged();
    void checkStarted();
    void errorMessageChanged();
    // Of isInstalling() or isOpening().
    void installingChanged();
    void downloadSizeChanged();
    void downloadedChanged();
    // In bytes; `total` is 0 when the site does not say.
    void progressChanged(int progress, int total);

private slots:
    void checkFinished();
    void downloadReadyRead();
    void downloadFinished();
    void sizeRequestFinished();

private:
    AccessManager &manager();
    using Handler = void (UpdateChecker::*)();
    // Where an answer leads: the target, or, when that is empty, why nobody goes there.
    struct Redirect
    {
        QUrl target;
        QString problem;
    };

    void setState(States state);
    void updateActions();
    void setError(const QString &text);
    [[nodiscard]] const ReleasedVersion &latest() const { return m_versions.last(); }

    // Each replaces the reply in flight; the handler is called when the new one has finished.
    void requestInformation(const QUrl &url);
    void requestSize(const QUrl &url);
    void requestDownload(const QUrl &url);
    [[nodiscard]] QNetworkRequest request(const QUrl &url) const;
    void await(QNetworkReply *reply, Handler finished);
    void dropReply();
    // Nothing when the reply in flight does not redirect. Counts the redirects.
    std::optional<Redirect> nextRedirect();
    [[nodiscard]] int replyStatus() const;

    void checkFailed(const QString &reason);
    void readInformation(const QByteArray &answer);
    void offerLatest();
    void setDownloadSize(qint64 bytes);

    // Opens the partial file as the answer's status demands; false when there is nothing to write.
    bool beginWriting();
    bool beginAnew();
    bool goOn();
    void downloadAnew();
    // Whether the answer has the rest of the partial file and nothing else.
    [[nodiscard]] bool hasFittingRange() const;
    void writeReceived();
    // A page about an error, so that it comes to its end.
    void discardReceived();
    void noteDownloaded(qint64 bytes);
    void finishDownload();
    void fileFailed(const QString &reason);
    void downloadFailed(const QString &reason);

    [[nodiscard]] bool isInstallable() const;
    void installFailed(const char *reason);

    UpdateEnvironment m_environment;
    UpdateFolder m_folder;
    QNetworkProxy m_proxy;
    std::unique_ptr<AccessManager> m_manager; // made with the first request, see NetworkSource
    QPointer<QNetworkReply> m_reply;
    int m_redirects = 0;
    States m_state = Normal;
    bool m_quiet = false;
    bool m_forced = false;
    QDateTime m_lastCheck;
    QString m_error;
    ReleasedVersions m_versions;
    QString m_setupPath; // empty while it is not known
    bool m_isSizeAsked = false;
    qint64 m_downloadSize = 0;
    qint64 m_downloaded = 0;
    qint64 m_discarded = 0; // bytes of the answer in flight
    PartialDownload m_partial;
    std::optional<PartialDownload::Rest> m_rest; // that the request in flight is to be the other part of
    SetupInstallation m_installation;
    QAction m_downloadAction;
    QAction m_abortAction;
    QAction m_installAction;
};
