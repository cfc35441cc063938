// SPDX-License-Identifier: MIT
#include "updates/Updater.h"

#include "network/Endpoints.h"
#include "network/SettingsStore.h"
#include "settings/SettingsChange.h"
#include "updates/DownloadDialog.h"
#include "updates/ProgramIcon.h"
#include "updates/UpdateDialog.h"
#include "updates/UpdateInfoDialog.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTextDocument>

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds startDelay(5000);
constexpr std::chrono::milliseconds tick(60000);
constexpr qint64 secondsInMinute = 60;
// Texts from the network may be of any length.
constexpr int longestDetail = 300;

// Ends a dialog that is open, without an answer of the user's.
template<typename Dialog>
void finish(QPointer<Dialog> *dialog)
{
    if (*dialog)
        (*dialog)->accept();
    dialog->clear(); // it goes a little later
}

void bringToFront(QWidget *dialog)
{
    dialog->raise();
    dialog->activateWindow();
}

// Whether something stands before the window that takes no other's clicks.
bool isCovered()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

} // namespace

Updater::Updater(const UpdateEnvironment &environment, QObject *parent)
    : QObject(parent)
    , m_now(environment.now)
    , m_checker(environment)
{
    m_timer.setTimerType(Qt::CoarseTimer);
    m_timer.setInterval(tick);
    connect(&m_timer, &QTimer::timeout, this, &Updater::checkIfDue);
    connect(&m_checker, &UpdateChecker::stateChanged, this, &Updater::checkerStateChanged);
    m_exit = [this] {
        if (m_window)
            m_window->hide();
        QCoreApplication::quit();
    };
    connect(&m_checker, &UpdateChecker::exitRequest, this, [this] { m_exit(); });
    QTimer::singleShot(startDelay, this, &Updater::startUpdateTimer);
}

Updater::~Updater()
{
    m_checker.disconnect(this);
}

void Updater::setParentWindow(QWidget *window)
{
    m_window = window;
    window->installEventFilter(this);
}

// The program may need a while to end after its window is gone; no dialog may stand about then.
bool Updater::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Hide && !event->spontaneous())
        windowGone();
    return QObject::eventFilter(watched, event);
}

// When to check

void Updater::startUpdateTimer()
{
    if (endpointExists(Endpoint::Maker))
        m_timer.start();
}

// The period is looked up each time, so that the preferences take effect at once.
bool Updater::isDue() const
{
    const qint64 periodMinutes = storedValue(SettingsStore(), SettingsKey::UpdaterPeriod).toLongLong();
    if (periodMinutes <= 0)
        return false;
    // Divided, since the product of a large period may not fit.
    return !m_lastCheckUpdate.isValid() || m_lastCheckUpdate.secsTo(m_now()) / secondsInMinute >= periodMinutes;
}

bool Updater::isBusy() const
{
    const UpdateChecker::States state = m_checker.state();
    return state == UpdateChecker::Checking || state == UpdateChecker::Downloading || m_checker.isInstalling() ||
           m_info || m_offer || m_download || m_box;
}

void Updater::checkIfDue()
{
    if (!isWindowShown() || isCovered())
        return;
    offerIfDue();
    if (isBusy() || !isDue())
        return;
    m_byUser = false;
    m_checker.setQuiet(true);
    check();
}

void Updater::checkByUser()
{
    if (m_download) {
        bringToFront(m_download);
        return;
    }
    m_byUser = true;
    m_checker.setQuiet(false);
    if (m_offer)
        m_offer->close();
    if (m_checker.state() == UpdateChecker::Checking)
        showInfo();
    else
        check();
}

void Updater::check()
{
    m_lastCheckUpdate = m_now();
    m_checker.check();
    emit checked();
}

// What comes of it

void Updater::checkerStateChanged()
{
    const UpdateChecker::States state = m_checker.state();
    if (state != UpdateChecker::Checking)
        finish(&m_info);
    switch (state) {
    case UpdateChecker::Checking:
        m_isOfferDue = true;
        if (m_byUser)
            showInfo();
        break;
    case UpdateChecker::UpdateAvailable:
    case UpdateChecker::InstallAvailable:
        offerIfDue();
        break;
    case UpdateChecker::Downloading:
        showDownload();
        break;
    case UpdateChecker::UpToDate:
        if (m_byUser)
            tell(tr("You have the latest version."));
        break;
    case UpdateChecker::Error:
        finish(&m_download);
        if (m_byUser)
            tell(tr("Failed to update"), m_checker.error());
        break;
    case UpdateChecker::Normal:
        break;
    }
}

void Updater::showInfo()
{
    if (!isWindowShown())
        return;
    if (!m_info) {
        m_info = new UpdateInfoDialog(m_window);
        m_info->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_info, &QDialog::rejected, &m_checker, &UpdateChecker::abortCheck);
        m_info->open();
    }
    bringToFront(m_info);
}

// Once a check: the states come again when the size is known, and when a download ends or is aborted. An offer that
// nobody asked for waits while it would stand over something that does not let it be clicked.
void Updater::offerIfDue()
{
    const UpdateChecker::States state = m_checker.state();
    const bool isFound = state == UpdateChecker::UpdateAvailable || state == UpdateChecker::InstallAvailable;
    if (!m_isOfferDue || !isFound || !isWindowShown() || (!m_byUser && isCovered()))
        return;
    m_isOfferDue = false;
    if (m_byUser || !isSkipped(m_checker.latestVersion()))
        offer();
}

void Updater::offer()
{
    const QString version = m_checker.latestVersion();
    m_offer = new UpdateDialog(m_checker.versions(), m_now().date(),
                               m_byUser ? UpdateDialog::Occasion::Asked : UpdateDialog::Occasion::Unasked, m_window);
    m_offer->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_offer, &QDialog::finished, this, [this, version](int answer) { takeAnswer(answer, version); });
    connect(&m_checker, &UpdateChecker::errorMessageChanged, m_offer,
            [this, dialog = m_offer.data()] { dialog->showError(m_checker.error()); });
    // An offer that nobody asked for must not block the window that the user works in.
    if (m_byUser)
        m_offer->open();
    else
        m_offer->show();
}

void Updater::takeAnswer(int answer, const QString &version)
{
    m_offer.clear(); // it goes a little later
    if (answer == UpdateDialog::Skip)
        skip(version);
    if (answer != UpdateDialog::Install)
        return;
    m_byUser = true;
    if (m_checker.state() == UpdateChecker::InstallAvailable)
        showDownload(); // of what is there already
    else
        m_checker.download();
}

bool Updater::isSkipped(const QString &version) const
{
    return version == m_skippedVersion ||
           version == storedValue(SettingsStore(), SettingsKey::UpdaterSkippedVersion).toString();
}

void Updater::skip(const QString &version)
{
    m_skippedVersion = version;
    SettingsChange change;
    change.set(SettingsKey::UpdaterSkippedVersion, version);
    change.commit();
}

// Beside the window and not before it, as a download may take long.
void Updater::showDownload()
{
    if (m_download || !isWindowShown())
        return;
    m_download = new DownloadDialog(&m_checker, m_window);
    m_download->setAttribute(Qt::WA_DeleteOnClose);
    m_download->show();
}

void Updater::tell(const QString &text, const QString &detail)
{
    if (!isWindowShown())
        return;
    m_box = new QMessageBox(QMessageBox::NoIcon, tr("Update"), text, QMessageBox::NoButton, m_window);
    m_box->addButton(tr("Close"), QMessageBox::RejectRole);
    m_box->setIconPixmap(programIcon(m_window));
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setTextFormat(Qt::PlainText);
    // The format does not count for this text, in which words of the network may stand.
    if (!detail.isEmpty())
        m_box->setInformativeText(Qt::convertFromPlainText(detail.left(longestDetail)));
    m_box->open();
}

// What is under way ends first, as it would hold on to its dialog or show another.
void Updater::windowGone()
{
    m_checker.abortCheck();
    m_checker.abortInstall();
    const QVector<QPointer<QDialog>> dialogs = {m_info.data(), m_offer.data(), m_download.data(), m_box.data()};
    for (const QPointer<QDialog> &dialog : dialogs) {
        if (dialog)
            dialog->close();
    }
}
