// SPDX-License-Identifier: MIT
#include "network/NetworkSource.h"

#include <QNetworkAccessManager>
#include <QPointer>

#include <utility>

NetworkSource::NetworkSource(QNetworkAccessManager *manager)
    : m_make([guarded = QPointer<QNetworkAccessManager>(manager)] { return guarded.data(); })
{
}

NetworkSource NetworkSource::later(Make make)
{
    NetworkSource source;
    source.m_make = std::move(make);
    return source;
}
