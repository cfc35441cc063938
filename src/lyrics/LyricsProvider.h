// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/ProviderStep.h"
#include "network/NetworkSource.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QUrl>

// The client of one lyrics site, for one search at a time. This class is the whole frame: it alone chooses the access
// manager, sends, follows redirects, maps errors, decodes pages, releases replies and emits finished().
// A site adds its names, its first request, and one function per page that says what to do next (ProviderStep).
//
// Lives in the thread of its access manager; nothing here blocks, and there is no time-out but that of the manager.
class LyricsProvider : public QObject
{
    Q_OBJECT

public:
    // The manager must outlive the provider. Without one, the provider makes its own at its first request.
    explicit LyricsProvider(const NetworkSource &network, QObject *parent = nullptr);
    // Aborts a request in flight; finished() is not emitted then.
    ~LyricsProvider() override;

    // The name people see, which is also the key in the order of providers.
    [[nodiscard]] virtual QString name() const = 0;
    // The base address of the site, scheme included.
    [[nodiscard]] virtual QString siteUrl() const = 0;
    // Whether the names are good for a search: by default, when neither is blank.
    [[nodiscard]] virtual bool canSearch(const QString &artist, const QString &title) const;
    // A new idle provider of the same site with the same manager; `parent` owns it.
    [[nodiscard]] virtual LyricsProvider *clone(QObject *parent) const = 0;

    [[nodiscard]] bool isBusy() const { return m_busy; }
    // Why the last search failed; empty when it did not, also when the site just does not have the song.
    [[nodiscard]] QString errorString() const { return m_errorString; }

    // Starts a search. False, and nothing happens, when one is running or the names are no good.
    bool search(const QString &artist, const QString &title);

signals:
    // Once for each search that was accepted, never from inside search(). Empty `lyrics`: nothing found, or failed
    // with errorString(). Names of characters are decoded (withNamedCharacters), and what no tag can hold is gone
    // (withoutBrokenCharacters).
    // The provider is idle again, so another search may be started at once.
    void finished(const QString &lyrics);

protected:
    // How every site sees us that wants to see a browser.
    static QByteArray browserUserAgent();
    // A request as a browser sends it that comes from the page `referer`.
    static QNetworkRequest browserRequest(const QUrl &url, const QUrl &referer);

    [[nodiscard]] const NetworkSource &network() const { return m_network; }

    // The beginning of a search for names that canSearch() accepts.
    virtual ProviderStep firstStep(const QString &artist, const QString &title) = 0;
    // The request that follows a redirect, with the headers that the site wants on it; by default none.
    [[nodiscard]] virtual QNetworkRequest redirectedRequest(const QUrl &target) const;
    // Whether pages are percent-decoded before they are read. The patterns of nearly all sites are made for that,
    // though it is odd for HTML; it is deliberate.
    [[nodiscard]] virtual bool hasPercentEncodedPages() const { return true; }

private:
    QNetworkAccessManager *accessManager();
    void carryOut(const ProviderStep &step);
    void send(QNetworkRequest request);
    void replyFinished(QNetworkReply *reply);
    void follow(const QNetworkReply &reply);
    void readPage(QNetworkReply &reply);
    // `failure` is for the log, when the result is one.
    void finish(const ProviderStep &result, const QByteArray &failure = QByteArrayLiteral("failed"));
    [[nodiscard]] QString textOf(const QByteArray &source) const;

    NetworkSource m_network;
    QNetworkAccessManager *m_ownNetworkManager = nullptr;
    QPointer<QNetworkReply> m_reply;
    ProviderStep::PageFunction m_readPage;
    QString m_errorString;
    QUrl m_chainStart; // address of the search's first request
    int m_redirects = 0;
    bool m_busy = false;
};
