// SPDX-License-Identifier: MIT
#pragma once

#include "updates/UpdateChecker.h"
#include "updates/UpdateEnvironment.h"

#include <QDateTime>
#include <QNetworkProxy>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

class DownloadDialog;
class QMessageBox;
class UpdateDialog;
class UpdateInfoDialog;

// Looks for newer versions of the program, by itself from time to time and when the user asks, and leads the user
// through what the checker finds.
//
// Scheduled checks are quiet: they show nothing but an offer of a version that was not skipped. They begin a minute
// after the start at the earliest, and only while there is a window to show an offer over; no check is made where the
// maker has no site. A check by the user takes over a scheduled one that is under way, and leads back to a download
// that is. Main thread only.
class Updater : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QDateTime lastCheckUpdate READ lastCheckUpdate NOTIFY checked)

public:
    // The application's names must be set.
    explicit Updater(const UpdateEnvironment &environment = {}, QObject *parent = nullptr);
    ~Updater() override;

    // For the dialogs, which go when it is hidden. Not owned.
    void setParentWindow(QWidget *window);
    // Asked before a setup file is handed over, which ends the program. None: nothing is asked.
    void setBeforeInstall(UpdateChecker::Question question) { m_checker.setBeforeInstall(std::move(question)); }
    // Ends the program once a setup file was handed over. Unset, the window is hidden and the event loop ended.
    void setExit(std::function<void()> exit) { m_exit = std::move(exit); }
    // For the requests from now on.
    void useProxy(const QNetworkProxy &proxy) { m_checker.useProxy(proxy); }

    // Of any kind, in this run; invalid before the first one.
    [[nodiscard]] QDateTime lastCheckUpdate() const { return m_lastCheckUpdate; }
    [[nodiscard]] UpdateChecker *checker() { return &m_checker; }

public slots:
    // Starts a check, whatever is going on.
    void check();
    // Starts a check when one is due by the stored period, and when no other and no dialog is in the way.
    void checkIfDue();
    void checkByUser();
    void checkerStateChanged();
    // From now on a check may begin every minute.
    void startUpdateTimer();

signals:
    void checked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isDue() const;
    [[nodiscard]] bool isBusy() const;
    [[nodiscard]] bool isSkipped(const QString &version) const;
    void skip(const QString &version);
    [[nodiscard]] bool isWindowShown() const { return m_window && m_window->isVisible(); }
    void showInfo();
    void offerIfDue();
    void offer();
    void takeAnswer(int answer, const QString &version);
    void showDownload();
    void tell(const QString &text, const QString &detail = {});
    void windowGone();

    std::function<QDateTime()> m_now;
    UpdateChecker m_checker;
    QTimer m_timer{this};
    QDateTime m_lastCheckUpdate;
    QString m_skippedVersion; // in this run, should it not be possible to store it
    bool m_byUser = false;    // what is going on
    bool m_isOfferDue = false;
    std::function<void()> m_exit;
    QPointer<QWidget> m_window;
    // Each while it is open.
    QPointer<UpdateInfoDialog> m_info;
    QPointer<UpdateDialog> m_offer;
    QPointer<DownloadDialog> m_download;
    QPointer<QMessageBox> m_box;
};
