// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>

#include <map>
#include <memory>
#include <vector>

class LyricsProvider;
class TagCorrector;

// Runs the searches for lyrics. Each tries the enabled providers in the user's order; when none has the song, the
// correctors are asked for better names, and the providers are tried again with each pair of those.
//
// Any number of searches may be in flight, each with provider and corrector objects of its own: those that are
// registered here are never searched with but only cloned. Lives in the main thread. A search cannot be cancelled and
// has no time-out.
class LyricsSearch : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int searchCount READ searchCount NOTIFY searchCountChanged)

public:
    explicit LyricsSearch(QObject *parent = nullptr);
    // Ends all searches without a word.
    ~LyricsSearch() override;

    // Registers a provider behind the others and takes it over; null is ignored.
    void addProvider(std::unique_ptr<LyricsProvider> provider);
    // Registers a corrector behind the others and takes it over; null is ignored.
    void addCorrector(std::unique_ptr<TagCorrector> corrector);

    // The names of all providers in the order in which they are tried, joined by ";;"; "::0" behind a name marks it as
    // disabled.
    [[nodiscard]] QString providersOrder() const;
    // Whether every registered provider, enabled or not, accepts these names.
    [[nodiscard]] bool canSearch(const QString &artist, const QString &title) const;
    // The number of searches in flight.
    [[nodiscard]] int searchCount() const { return static_cast<int>(m_searches.size()); }
    [[nodiscard]] bool isSearching(quint16 id) const { return m_searches.count(id) > 0; }

    // Starts a search. False, and nothing is emitted, when `id` is being searched for or the names are no good. Names
    // that are too long (longestName) are accepted, but nobody is asked for them.
    bool search(quint16 id, const QString &artist, const QString &title);

public slots:
    // Applies an order in the form of providersOrder(). Names are compared without regard to case and blank ends;
    // unknown ones are ignored, and providers that are not named follow in the order they had.
    void setProvidersOrder(const QString &order);

signals:
    // Once for each accepted search, never from inside search(). With lyrics: the names they were found under, which
    // may be corrected ones. Without: the names that were asked for, and the last failure of a site, if any.
    void searchFinished(quint16 id, const QString &artist, const QString &title, const QString &lyrics,
                        const QString &errorString);
    // After searchFinished(), and when a search was added.
    void searchCountChanged(int count);

private:
    struct Names
    {
        QString artist;
        QString title;

        bool operator==(const Names &other) const { return artist == other.artist && title == other.title; }
    };

    // Waits for a provider or for a corrector, or for the event loop to end it.
    struct Search
    {
        // The names that were asked for.
        Names names;
        // The names still to try; the first ones are being tried.
        QList<Names> candidates;
        LyricsProvider *provider = nullptr;
        int providerIndex = -1;
        TagCorrector *corrector = nullptr;
        int correctorIndex = -1;
        QString lastError;
    };

    void tryNext(quint16 id, Search &search);
    [[nodiscard]] int nextEnabledProvider(int index) const;
    void startProvider(quint16 id, Search &search);
    void providerFinished(quint16 id, LyricsProvider *provider, const QString &lyrics);
    void correctNames(quint16 id, Search &search);
    void correctorFinished(quint16 id, TagCorrector *corrector, const QStringList &artists, const QStringList &titles);
    void finishNotFound(quint16 id);
    void finish(quint16 id, const Names &names, const QString &lyrics, const QString &errorString);

    [[nodiscard]] bool isEnabled(const LyricsProvider &provider) const;
    std::unique_ptr<LyricsProvider> takeProvider(const QString &name);

    std::map<quint16, Search> m_searches;
    std::vector<std::unique_ptr<LyricsProvider>> m_providers;
    std::vector<std::unique_ptr<TagCorrector>> m_correctors;
    // By name; a provider without an entry is enabled.
    QMap<QString, bool> m_enabledProviders;
};
