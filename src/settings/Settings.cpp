// SPDX-License-Identifier: MIT
#include "settings/Settings.h"

#include "network/SettingsStore.h"
#include "settings/SettingsChange.h"
#include "settings/SettingsCipher.h"
#include "settings/SettingsKeys.h"

#include <limits>

namespace {

constexpr int smallestFontSize = 6;
constexpr int largestFontSize = 40;
constexpr int largestPort = std::numeric_limits<quint16>::max();

// Part of the file format: with another one, no stored secret can be read any more.
constexpr quint64 cipherKey = 0x3d81c5a27e90b46f;
// That of an empty secret. What is shorter deciphers to nothing as well, and may be anything.
constexpr int shortestCipherText = 8;

// Stores the value and tells whether it was a new one.
template<typename T>
bool assign(T &field, const T &value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

QString enciphered(const QString &secret)
{
    return SettingsCipher(cipherKey).encryptToString(secret);
}

// What is to be stored for a secret: the text that is there when it stands for the same one, since a new one would be
// another text each time, and a change of the file that changes nothing.
QString storedOrEnciphered(const QString &stored, const QString &secret)
{
    SettingsCipher cipher(cipherKey);
    const bool isSame = cipher.decryptToString(stored) == secret && cipher.lastError() == SettingsCipher::ErrorNoError;
    return isSame && stored.size() >= shortestCipherText ? stored : enciphered(secret);
}

// The stored values, each with a fallback for an absent key.
class Reader
{
public:
    [[nodiscard]] QString text(SettingsKey key, const QString &current) const { return value(key, current).toString(); }
    [[nodiscard]] bool flag(SettingsKey key, bool current) const { return flagOf(value(key, current)); }

    // `current` also stands when what is stored is no number or out of range.
    [[nodiscard]] int number(SettingsKey key, int current, int smallest, int largest) const
    {
        return numberOf(value(key, current), smallest, largest).value_or(current);
    }

    [[nodiscard]] QString secret(SettingsKey key, const QString &current) const
    {
        return SettingsCipher(cipherKey).decryptToString(text(key, enciphered(current)));
    }

private:
    [[nodiscard]] QVariant value(SettingsKey key, const QVariant &current) const
    {
        return m_store.value(keyName(key), current);
    }

    SettingsStore m_store;
};

ProxyConfiguration defaultProxy()
{
    ProxyConfiguration proxy;
    proxy.type = keyDefault(SettingsKey::ProxyType).toInt();
    proxy.address = keyDefault(SettingsKey::ProxyAddress).toString();
    proxy.port = static_cast<quint16>(keyDefault(SettingsKey::ProxyPort).toUInt());
    proxy.authentication = keyDefault(SettingsKey::ProxyAuthentication).toBool();
    proxy.username = keyDefault(SettingsKey::ProxyUsername).toString();
    proxy.password = keyDefault(SettingsKey::ProxyPassword).toString();
    return proxy;
}

} // namespace

Settings::Settings(QObject *parent)
    : QObject(parent)
    , m_lyricsFontSize(keyDefault(SettingsKey::LyricsFontSize).toInt())
    , m_language(keyDefault(SettingsKey::Language).toString())
    , m_proxy(defaultProxy())
    , m_saveFilesList(keyDefault(SettingsKey::SaveFilesList).toBool())
    , m_searchProvider(keyDefault(SettingsKey::SearchProvider).toString())
    , m_generateLyricsFileAuto(keyDefault(SettingsKey::GenerateLyricsFileAuto).toBool())
    , m_prependNewLine(keyDefault(SettingsKey::PrependNewLine).toBool())
    , m_providersOrder(keyDefault(SettingsKey::ProvidersOrder).toString())
{
    connect(this, &Settings::languageChanged, this, &Settings::changed);
    connect(this, &Settings::proxyChanged, this, &Settings::changed);
}

void Settings::load()
{
    const Reader stored;
    m_lyricsFontSize = stored.number(SettingsKey::LyricsFontSize, m_lyricsFontSize, smallestFontSize, largestFontSize);
    m_language = stored.text(SettingsKey::Language, m_language);
    m_proxy.type = stored.number(SettingsKey::ProxyType, m_proxy.type, std::numeric_limits<int>::min(),
                                 std::numeric_limits<int>::max());
    m_proxy.address = stored.text(SettingsKey::ProxyAddress, m_proxy.address);
    m_proxy.port = static_cast<quint16>(stored.number(SettingsKey::ProxyPort, m_proxy.port, 0, largestPort));
    m_proxy.authentication = stored.flag(SettingsKey::ProxyAuthentication, m_proxy.authentication);
    m_proxy.username = stored.secret(SettingsKey::ProxyUsername, m_proxy.username);
    m_proxy.password = stored.secret(SettingsKey::ProxyPassword, m_proxy.password);
    m_saveFilesList = stored.flag(SettingsKey::SaveFilesList, m_saveFilesList);
    m_searchProvider = stored.text(SettingsKey::SearchProvider, m_searchProvider);
    m_generateLyricsFileAuto = stored.flag(SettingsKey::GenerateLyricsFileAuto, m_generateLyricsFileAuto);
    m_prependNewLine = stored.flag(SettingsKey::PrependNewLine, m_prependNewLine);
    m_providersOrder = stored.text(SettingsKey::ProvidersOrder, m_providersOrder);
}

bool Settings::save() const
{
    SettingsChange change;
    addTo(&change);
    return change.commit();
}

void Settings::addTo(SettingsChange *change) const
{
    const SettingsStore store;
    const auto secret = [&store](SettingsKey key, const QString &value) {
        return storedOrEnciphered(storedValue(store, key).toString(), value);
    };
    change->set(SettingsKey::LyricsFontSize, m_lyricsFontSize);
    change->set(SettingsKey::Language, m_language);
    change->set(SettingsKey::ProxyType, m_proxy.type);
    change->set(SettingsKey::ProxyAddress, m_proxy.address);
    change->set(SettingsKey::ProxyPort, static_cast<int>(m_proxy.port));
    change->set(SettingsKey::ProxyAuthentication, m_proxy.authentication);
    change->set(SettingsKey::ProxyUsername, secret(SettingsKey::ProxyUsername, m_proxy.username));
    change->set(SettingsKey::ProxyPassword, secret(SettingsKey::ProxyPassword, m_proxy.password));
    change->set(SettingsKey::SaveFilesList, m_saveFilesList);
    change->set(SettingsKey::SearchProvider, m_searchProvider);
    change->set(SettingsKey::GenerateLyricsFileAuto, m_generateLyricsFileAuto);
    change->set(SettingsKey::PrependNewLine, m_prependNewLine);
    change->set(SettingsKey::ProvidersOrder, m_providersOrder);
}

void Settings::setLyricsFontSize(int pointSize)
{
    if (pointSize < smallestFontSize || pointSize > largestFontSize)
        return;
    if (assign(m_lyricsFontSize, pointSize))
        emit changed();
}

void Settings::setLanguage(const QString &language)
{
    if (assign(m_language, language))
        emit languageChanged(language);
}

void Settings::setProxyType(int type)
{
    if (assign(m_proxy.type, type))
        emit proxyChanged();
}

void Settings::setProxyAddress(const QString &address)
{
    if (assign(m_proxy.address, address))
        emit proxyChanged();
}

void Settings::setProxyAuthentication(bool on)
{
    if (assign(m_proxy.authentication, on))
        emit proxyChanged();
}

void Settings::setProxyUsername(const QString &name)
{
    if (assign(m_proxy.username, name))
        emit proxyChanged();
}

void Settings::setProxyPassword(const QString &password)
{
    if (assign(m_proxy.password, password))
        emit proxyChanged();
}

void Settings::setProxyPort(quint16 port)
{
    if (assign(m_proxy.port, port))
        emit proxyChanged();
}

void Settings::setSaveFilesList(bool on)
{
    if (assign(m_saveFilesList, on))
        emit saveFilesListChanged(on);
}

void Settings::setSearchProvider(const QString &name)
{
    if (assign(m_searchProvider, name))
        emit searchProviderChanged(name);
}

void Settings::setGenerateLyricsFileAuto(bool on)
{
    if (assign(m_generateLyricsFileAuto, on))
        emit generateLyricsFileAutoChanged(on);
}

void Settings::setPrependNewLine(bool on)
{
    if (assign(m_prependNewLine, on))
        emit prependNewLineChanged(on);
}

void Settings::setProvidersOrder(const QString &order)
{
    if (assign(m_providersOrder, order))
        emit providersOrderChanged(order);
}
