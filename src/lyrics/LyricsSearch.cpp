// SPDX-License-Identifier: MIT
#include "lyrics/LyricsSearch.h"

#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "lyrics/TagCorrector.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

QString orderSeparator()
{
    return QStringLiteral(";;");
}

QString disabledMark()
{
    return QStringLiteral("::0");
}

QString folded(const QString &name)
{
    return name.toLower().trimmed();
}

QStringList withoutDuplicates(const QStringList &items)
{
    QStringList unique;
    QSet<QString> seen;
    for (const QString &item : items) {
        const QString key = folded(item);
        if (seen.contains(key))
            continue;
        seen.insert(key);
        unique.append(item);
    }
    return unique;
}

// A site's placeholder for lyrics that were withdrawn counts as no lyrics.
bool isFound(const QString &lyrics)
{
    return !lyrics.isEmpty() && !decodeHtmlEntities(lyrics).contains(QLatin1String("gracenote_takedown"));
}

} // namespace

LyricsSearch::LyricsSearch(QObject *parent)
    : QObject(parent)
{
}

LyricsSearch::~LyricsSearch() = default;

void LyricsSearch::addProvider(std::unique_ptr<LyricsProvider> provider)
{
    if (provider)
        m_providers.push_back(std::move(provider));
}

void LyricsSearch::addCorrector(std::unique_ptr<TagCorrector> corrector)
{
    if (corrector)
        m_correctors.push_back(std::move(corrector));
}

bool LyricsSearch::isEnabled(const LyricsProvider &provider) const
{
    return m_enabledProviders.value(provider.name(), true);
}

QString LyricsSearch::providersOrder() const
{
    QStringList items;
    for (const auto &provider : m_providers)
        items.append(isEnabled(*provider) ? provider->name() : provider->name() + disabledMark());
    return items.join(orderSeparator());
}

void LyricsSearch::setProvidersOrder(const QString &order)
{
    std::vector<std::unique_ptr<LyricsProvider>> ordered;
    for (const QString &item : withoutDuplicates(order.split(orderSeparator()))) {
        const QString name = item.left(item.indexOf(disabledMark()));
        std::unique_ptr<LyricsProvider> provider = takeProvider(name);
        if (!provider)
            continue;
        // Under the name as it is written here, so that a mark takes effect only where the name is spelled exactly as
        // the provider spells it. This is deliberate.
        m_enabledProviders.insert(name, !item.endsWith(disabledMark()));
        ordered.push_back(std::move(provider));
    }
    for (auto &provider : m_providers) {
        if (provider)
            ordered.push_back(std::move(provider));
    }
    m_providers = std::move(ordered);
}

// Leaves a gap in the list.
std::unique_ptr<LyricsProvider> LyricsSearch::takeProvider(const QString &name)
{
    const auto found = std::find_if(m_providers.begin(), m_providers.end(), [key = folded(name)](const auto &provider) {
        return provider && provider->name().toLower() == key;
    });
    return found != m_providers.end() ? std::move(*found) : nullptr;
}

bool LyricsSearch::canSearch(const QString &artist, const QString &title) const
{
    return std::all_of(m_providers.begin(), m_providers.end(),
                       [&](const auto &provider) { return provider->canSearch(artist, title); });
}

bool LyricsSearch::search(quint16 id, const QString &artist, const QString &title)
{
    if (isSearching(id) || !canSearch(artist, title))
        return false;
    Search &search = m_searches[id];
    search.names = {artist, title};
    search.candidates.append(search.names);
    emit searchCountChanged(searchCount());
    if (std::max(artist.size(), title.size()) <= longestName) {
        tryNext(id, search);
        return true;
    }
    search.lastError = tr("The artist or title is too long to search for.");
    QMetaObject::invokeMethod(
        this, [this, id] { finishNotFound(id); }, Qt::QueuedConnection);
    return true;
}

int LyricsSearch::nextEnabledProvider(int index) const
{
    const auto count = static_cast<int>(m_providers.size());
    do {
        ++index;
    } while (index < count && !isEnabled(*m_providers[static_cast<std::size_t>(index)]));
    return index;
}

// Goes on with the next provider, with corrected names, or to the end.
void LyricsSearch::tryNext(quint16 id, Search &search)
{
    const auto providerCount = static_cast<int>(m_providers.size());
    search.providerIndex = nextEnabledProvider(search.providerIndex);
    if (search.providerIndex >= providerCount) {
        if (!search.candidates.isEmpty())
            search.candidates.removeFirst();
        if (search.correctorIndex + 1 < static_cast<int>(m_correctors.size())) {
            correctNames(id, search);
            return;
        }
        // The first provider is tried with the second and later corrected names even when it is disabled. This is
        // deliberate.
        search.providerIndex = 0;
    }
    if (search.candidates.isEmpty() || providerCount == 0)
        QMetaObject::invokeMethod(
            this, [this, id] { finishNotFound(id); }, Qt::QueuedConnection);
    else
        startProvider(id, search);
}

void LyricsSearch::startProvider(quint16 id, Search &search)
{
    LyricsProvider *provider = m_providers[static_cast<std::size_t>(search.providerIndex)]->clone(this);
    search.provider = provider;
    connect(provider, &LyricsProvider::finished, this,
            [this, id, provider](const QString &lyrics) { providerFinished(id, provider, lyrics); });
    const Names names = search.candidates.first();
    if (!provider->search(names.artist, names.title))
        QMetaObject::invokeMethod(
            provider, [this, id, provider] { providerFinished(id, provider, {}); }, Qt::QueuedConnection);
}

void LyricsSearch::providerFinished(quint16 id, LyricsProvider *provider, const QString &lyrics)
{
    const auto found = m_searches.find(id);
    if (found == m_searches.end() || found->second.provider != provider)
        return;
    Search &search = found->second;
    search.provider = nullptr;
    provider->deleteLater();
    if (isFound(lyrics)) {
        const Names names = search.candidates.first();
        finish(id, names, lyrics, {});
        return;
    }
    if (!provider->errorString().isEmpty())
        search.lastError = provider->errorString();
    tryNext(id, search);
}

void LyricsSearch::correctNames(quint16 id, Search &search)
{
    ++search.correctorIndex;
    search.providerIndex = -1;
    TagCorrector *corrector = m_correctors[static_cast<std::size_t>(search.correctorIndex)]->clone(this);
    search.corrector = corrector;
    connect(corrector, &TagCorrector::finished, this,
            [this, id, corrector](const QStringList &artists, const QStringList &titles) {
                correctorFinished(id, corrector, artists, titles);
            });
    if (!corrector->correct(search.names.artist, search.names.title))
        QMetaObject::invokeMethod(
            corrector, [this, id, corrector] { correctorFinished(id, corrector, {}, {}); }, Qt::QueuedConnection);
}

void LyricsSearch::correctorFinished(quint16 id, TagCorrector *corrector, const QStringList &artists,
                                     const QStringList &titles)
{
    const auto found = m_searches.find(id);
    if (found == m_searches.end() || found->second.corrector != corrector)
        return;
    Search &search = found->second;
    search.corrector = nullptr;
    corrector->deleteLater();
    for (int i = 0; i < std::min(artists.size(), titles.size()); ++i) {
        const Names pair{artists.at(i), titles.at(i)};
        const bool blank = pair.artist.isEmpty() || pair.title.isEmpty();
        if (!blank && !(pair == search.names) && !search.candidates.contains(pair))
            search.candidates.append(pair);
    }
    if (search.correctorIndex + 1 < static_cast<int>(m_correctors.size()))
        correctNames(id, search);
    else
        tryNext(id, search);
}

void LyricsSearch::finishNotFound(quint16 id)
{
    const Search search = m_searches.at(id);
    finish(id, search.names, {}, search.lastError);
}

// What it is given must not belong to the search, which ends here before anybody is told.
void LyricsSearch::finish(quint16 id, const Names &names, const QString &lyrics, const QString &errorString)
{
    m_searches.erase(id);
    emit searchFinished(id, names.artist, names.title, lyrics, errorString);
    emit searchCountChanged(searchCount());
}
