// SPDX-License-Identifier: MIT
#pragma once

#include "network/ProxyConfiguration.h"

#include <QObject>
#include <QString>

class SettingsChange;

// The user's preferences while the program runs.
//
// Loaded once at the start and saved when the main window goes; in between this object is the only current copy. Every
// setter is silent when nothing changes and never writes to the store. SettingsKeys.h has the keys and the defaults.
// The user name and the password for the proxy are stored enciphered and never logged. Main thread only.
class Settings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int lyricsFontSize READ lyricsFontSize WRITE setLyricsFontSize NOTIFY changed)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    Q_PROPERTY(int proxyType READ proxyType WRITE setProxyType NOTIFY proxyChanged)
    Q_PROPERTY(QString proxyAddress READ proxyAddress WRITE setProxyAddress NOTIFY proxyChanged)
    Q_PROPERTY(quint16 proxyPort READ proxyPort WRITE setProxyPort NOTIFY proxyChanged)
    Q_PROPERTY(bool proxyAuthentication READ proxyAuthentication WRITE setProxyAuthentication NOTIFY proxyChanged)
    Q_PROPERTY(QString proxyUsername READ proxyUsername WRITE setProxyUsername NOTIFY proxyChanged)
    Q_PROPERTY(QString proxyPassword READ proxyPassword WRITE setProxyPassword NOTIFY proxyChanged)
    Q_PROPERTY(bool saveFilesList READ saveFilesList WRITE setSaveFilesList NOTIFY saveFilesListChanged)
    Q_PROPERTY(QString searchProvider READ searchProvider WRITE setSearchProvider NOTIFY searchProviderChanged)
    Q_PROPERTY(bool generateLyricsFileAuto READ generateLyricsFileAuto WRITE setGenerateLyricsFileAuto NOTIFY
                   generateLyricsFileAutoChanged)
    Q_PROPERTY(bool prependNewLine READ prependNewLine WRITE setPrependNewLine NOTIFY prependNewLineChanged)
    Q_PROPERTY(QString providersOrder READ providersOrder WRITE setProvidersOrder NOTIFY providersOrderChanged)

public:
    explicit Settings(QObject *parent = nullptr);

    // Point size of the lyrics text, 6 to 40; 12 by default.
    [[nodiscard]] int lyricsFontSize() const { return m_lyricsFontSize; }
    // Code of the interface language ("de", "pt_BR"); empty (default) means the system's choice.
    [[nodiscard]] QString language() const { return m_language; }
    // 0 no proxy, 1 SOCKS5, 2 HTTP; any other number counts as no proxy.
    [[nodiscard]] int proxyType() const { return m_proxy.type; }
    [[nodiscard]] QString proxyAddress() const { return m_proxy.address; }
    [[nodiscard]] quint16 proxyPort() const { return m_proxy.port; }
    // Whether the user name and the password are sent to the proxy; off by default.
    [[nodiscard]] bool proxyAuthentication() const { return m_proxy.authentication; }
    [[nodiscard]] QString proxyUsername() const { return m_proxy.username; }
    [[nodiscard]] QString proxyPassword() const { return m_proxy.password; }
    // What the proxy fields describe, ready for an access manager.
    [[nodiscard]] QNetworkProxy proxy() const { return m_proxy.toProxy(); }
    // Whether the list of files is kept across runs; off by default.
    [[nodiscard]] bool saveFilesList() const { return m_saveFilesList; }
    // Name of the engine for searches in the browser; empty (default) means the default engine.
    [[nodiscard]] QString searchProvider() const { return m_searchProvider; }
    // Whether found lyrics also go into a text file beside the audio file; off by default.
    [[nodiscard]] bool generateLyricsFileAuto() const { return m_generateLyricsFileAuto; }
    // Whether a line break is put before found lyrics; off by default.
    [[nodiscard]] bool prependNewLine() const { return m_prependNewLine; }
    // The user's order of lyrics sites, in the format of LyricsSearch::setProvidersOrder; empty means the built-in
    // order.
    [[nodiscard]] QString providersOrder() const { return m_providersOrder; }

    // Reads every key from the store; an absent key leaves its field as it is, and so do a font size and a port that
    // are out of range. A secret that cannot be deciphered becomes empty. Emits nothing.
    void load();
    // Writes every key to the store. False, after a warning in the log, when the store cannot be written; it is then as
    // it was before.
    bool save() const;
    // Adds every key to what is stored together with it.
    void addTo(SettingsChange *change) const;

    // Whether this run may store the list of files: it is wanted, and no other program works on these settings. The
    // second is so unless it is said otherwise.
    [[nodiscard]] bool keepsFilesList() const { return m_saveFilesList && m_isHolder; }
    void setHolder(bool isHolder) { m_isHolder = isHolder; }

signals:
    // The font size, the language or the proxy changed.
    void changed();
    void languageChanged(const QString &language);
    // Any of the proxy's fields changed.
    void proxyChanged();
    void saveFilesListChanged(bool on);
    void searchProviderChanged(const QString &name);
    void generateLyricsFileAutoChanged(bool on);
    void prependNewLineChanged(bool on);
    void providersOrderChanged(const QString &order);

public slots:
    // A size outside 6 to 40 is ignored.
    void setLyricsFontSize(int pointSize);
    void setLanguage(const QString &language);
    void setProxyType(int type);
    void setProxyAddress(const QString &address);
    void setProxyAuthentication(bool on);
    void setProxyUsername(const QString &name);
    void setProxyPassword(const QString &password);
    void setProxyPort(quint16 port);
    void setSaveFilesList(bool on);
    void setSearchProvider(const QString &name);
    void setGenerateLyricsFileAuto(bool on);
    void setPrependNewLine(bool on);
    void setProvidersOrder(const QString &order);

private:
    int m_lyricsFontSize;
    QString m_language;
    ProxyConfiguration m_proxy;
    bool m_saveFilesList;
    QString m_searchProvider;
    bool m_generateLyricsFileAuto;
    bool m_prependNewLine;
    QString m_providersOrder;
    bool m_isHolder = true;
};
