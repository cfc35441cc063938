// SPDX-License-Identifier: MIT
#include "ui/UsageConsent.h"

#include "network/Endpoints.h"
#include "network/SettingsStore.h"
#include "settings/SettingsChange.h"
#include "settings/SettingsKeys.h"
#include "tracking/AppTracker.h"
#include "ui/UsageExample.h"

#include <QApplication>

static bool environmentForbids()
{
    const QString said = qEnvironmentVariable("DO_NOT_TRACK").trimmed();
    return !said.isEmpty() && said != QLatin1String("0") &&
           said.compare(QLatin1String("false"), Qt::CaseInsensitive) != 0;
}

UsageConsent::UsageConsent(AppTracker *tracker, QObject *parent)
    : QObject(parent)
    , m_tracker(tracker)
{
}

void UsageConsent::load()
{
    const SettingsStore store;
    m_isPossible = endpointExists(Endpoint::Collector);
    m_isForbidden = environmentForbids();
    const QVariant stored = storedValue(store, SettingsKey::UsageStatistics);
    if (stored.isValid())
        m_answer = flagOf(stored) ? Answer::Yes : Answer::No;
    const QString clientId = storedValue(store, SettingsKey::TrackerClientId).toString();
    SettingsChange change;
    if (isGiven())
        change.set(SettingsKey::TrackerClientId, m_tracker->allow(clientId));
    else if (!clientId.isEmpty() && (m_isForbidden || m_answer != Answer::Yes))
        change.set(SettingsKey::TrackerClientId, {});
    else
        return;
    change.commit();
}

void UsageConsent::answer(bool yes)
{
    if (m_isForbidden || !m_isPossible)
        return;
    m_answer = yes ? Answer::Yes : Answer::No;
    SettingsChange change;
    change.set(SettingsKey::UsageStatistics, yes);
    if (yes) {
        const QString stored = storedValue(SettingsStore(), SettingsKey::TrackerClientId).toString();
        change.set(SettingsKey::TrackerClientId, m_tracker->allow(stored));
    } else {
        m_tracker->forbid();
        change.set(SettingsKey::TrackerClientId, {});
    }
    change.commit();
    emit changed();
}

void UsageConsent::showExample()
{
    auto *example = new UsageExample(m_tracker, QApplication::activeWindow());
    example->setAttribute(Qt::WA_DeleteOnClose);
    example->open();
}
