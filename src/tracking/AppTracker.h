// SPDX-License-Identifier: MIT
#pragma once

#include "network/NetworkSource.h"
#include "tracking/OperatingSystemText.h"

#include <QByteArray>
#include <QNetworkRequest>
#include <QObject>
#include <QPair>
#include <QSet>
#include <QString>
#include <QVector>

#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

// Reports a few usage events to the collector (Endpoints.h), by the first version of the Measurement Protocol: one POST
// for each event.
//
// It is silent until it is allowed to speak, and wherever there is no collector: events are dropped then, and no
// identifier is made. Nothing is reported of a post that fails. The first event waits until the operating system has
// said what it is. Main thread only.
class AppTracker : public QObject
{
    Q_OBJECT

public:
    explicit AppTracker(QObject *parent = nullptr, const SystemSources &sources = {});
    ~AppTracker() override;

    // A random UUID of version 4, in lower case.
    [[nodiscard]] static bool isClientId(const QString &text);

    // Events are sent from now on, under this identifier, or under a new one when it is none. The one that is used is
    // returned, to be kept for the next run.
    QString allow(const QString &clientId);
    // No events from now on; those that are on their way are given up, and the identifier is forgotten.
    void forbid();

    // What a search for this song sends, in lines of plain text for people, with `identifier` where there is none yet.
    // The operating system stands in it once it is known.
    [[nodiscard]] QString searchExample(const QString &artist, const QString &title, const QString &identifier) const;
    // Asks for the operating system; systemKnown() follows when it was not known yet. Sends nothing.
    void findSystem() { m_system.find(); }

    // The label of a search event. Blanks at the ends do not count.
    [[nodiscard]] static QString searchLabel(const QString &artist, const QString &title);

    // Events wait between these two. The report of the end of the session ends the wait as well.
    void hold() { m_isHeld = true; }
    void release();

    void trackStart();
    // Reports the end of the session; quitTracked() follows from the event loop in any case.
    void trackQuit();
    void trackUpdate(const QString &previousVersion);
    void trackFacebook();
    void trackGooglePlus();
    void trackTwitter();
    void trackDonation();
    // Nothing when the artist is blank.
    void trackSearch(const QString &artist, const QString &title);
    // Nothing without a category or an action. An empty label is left out.
    void trackEvent(const QString &category, const QString &action, const QString &label = {},
                    std::optional<int> value = {});

public slots:
    // Posts go through this one. Without one, each has a manager of its own.
    void setNetworkAccessManager(const NetworkSource &network);

signals:
    // The report of the end of the session arrived or failed, or there was none to send.
    void quitTracked();
    void systemKnown();

private:
    using Fields = QVector<QPair<QByteArray, QString>>;
    struct Event
    {
        QByteArray body;
        bool isQuit;
    };

    [[nodiscard]] bool maySpeak() const;
    [[nodiscard]] Fields fields(const QString &category, const QString &action, const QString &label,
                                std::optional<int> value, const QString &clientId) const;
    [[nodiscard]] QNetworkRequest request() const;
    void sendWaiting();
    void send(const Event &event);
    void announceQuit();

    OperatingSystemText m_system;
    NetworkSource m_network;
    bool m_isAllowed = false;
    bool m_isHeld = false;
    QString m_clientId;
    QVector<Event> m_waiting; // for the operating system, or to be released
    QSet<QNetworkReply *> m_replies;
};
