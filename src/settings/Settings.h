// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

// The user's preferences while the program runs.
//
// Loaded once at the start and saved when the main window goes; in between this object is the only current copy. Every
// setter is silent when nothing changes and never writes to the store. Main thread only.
class Settings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int lyricsFontSize READ lyricsFontSize WRITE setLyricsFontSize NOTIFY changed)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
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

    // Reads every key from the store; an absent key leaves its field as it is. Emits nothing.
    void load();
    // Writes every key to the store.
    void save() const;

signals:
    // The font size or the language changed.
    void changed();
    void languageChanged(const QString &language);
    void saveFilesListChanged(bool on);
    void searchProviderChanged(const QString &name);
    void generateLyricsFileAutoChanged(bool on);
    void prependNewLineChanged(bool on);
    void providersOrderChanged(const QString &order);

public slots:
    // A size outside 6 to 40 is ignored.
    void setLyricsFontSize(int pointSize);
    void setLanguage(const QString &language);
    void setSaveFilesList(bool on);
    void setSearchProvider(const QString &name);
    void setGenerateLyricsFileAuto(bool on);
    void setPrependNewLine(bool on);
    void setProvidersOrder(const QString &order);

private:
    int m_lyricsFontSize = 12;
    QString m_language;
    bool m_saveFilesList = false;
    QString m_searchProvider;
    bool m_generateLyricsFileAuto = false;
    bool m_prependNewLine = false;
    QString m_providersOrder;
};
