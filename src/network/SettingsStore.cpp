// SPDX-License-Identifier: MIT
#include "network/SettingsStore.h"

#include <QFileInfo>

SettingsStore::SettingsStore()
    : QSettings(path(), QSettings::defaultFormat())
{
}

QString SettingsStore::path(const QString &organisation, const QString &application)
{
    // By the name of a neighbour that is never there: QSettings reads its files as soon as it is made, and those of the
    // program may be damaged, or a FIFO that never answers.
    const QSettings place(QSettings::defaultFormat(), QSettings::UserScope, organisation + QLatin1String(" place"),
                          application);
    const QFileInfo neighbour(place.fileName());
    return QFileInfo(neighbour.path()).path() + QLatin1Char('/') + organisation + QLatin1Char('/') +
           neighbour.fileName();
}
