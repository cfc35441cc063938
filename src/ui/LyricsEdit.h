// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class MainModel;
class ModelItem;

// The lyrics that the user is editing: of one song at a time, as a draft that nothing but the user changes. Lyrics that
// arrive for the song meanwhile change the song alone.
//
// It does not know which song is shown; LyricsEditGuard ends an edit whose song is not seen any more. The edit of a
// song that is deleted ends. Main thread only.
class LyricsEdit : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool active READ active NOTIFY activeChanged)
    Q_PROPERTY(bool modified READ modified NOTIFY modifiedChanged)
    Q_PROPERTY(int songId READ songId NOTIFY songIdChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    // The model is not owned and must outlive the edit.
    explicit LyricsEdit(MainModel *model, QObject *parent = nullptr);
    ~LyricsEdit() override;

    [[nodiscard]] bool active() const { return m_songId != noSong; }
    // Whether the draft differs from what the edit began with.
    [[nodiscard]] bool modified() const { return m_text != m_startText; }
    // -1 when nothing is edited.
    [[nodiscard]] int songId() const { return m_songId; }
    // Null when nothing is edited.
    [[nodiscard]] ModelItem *song() const;
    // The draft, with "\n" for every line break; empty when nothing is edited.
    [[nodiscard]] QString text() const { return m_text; }

    // Begins with the lyrics that the song has. Nothing when the song is null, not editable or its tags are not loaded,
    // or while a modified draft is there: it has to be saved or cancelled first.
    Q_INVOKABLE void begin(ModelItem *song);
    // Gives the draft to its song, ends the edit and has the song written. A draft whose song cannot be
    // written, because its tags are not loaded any more, stays and is still edited.
    Q_INVOKABLE void save();
    // Gives a text to a song and has it written, past all edits. Nothing when the song is null, not in the list, or its
    // tags are not loaded.
    void write(ModelItem *song, const QString &text);
    // Ends the edit and gives a modified draft to its song, which is not written: for the end of the program.
    void handOver();
    // Ends the edit and forgets the draft.
    Q_INVOKABLE void cancel();

public slots:
    // Ignored when nothing is edited.
    void setText(const QString &text);

signals:
    // Comes first of all; what else was typed for the song can still be taken over.
    void aboutToSave();
    // At the begin and at the end of an edit these come when all of it has changed, in this order.
    void songIdChanged(int id);
    void textChanged(const QString &text);
    void modifiedChanged(bool modified);
    void activeChanged(bool active);

private:
    static constexpr int noSong = -1;

    // Whether the song could take it.
    bool giveText(ModelItem *song, const QString &text);
    void change(ModelItem *song, const QString &startText, const QString &text);

    MainModel *m_model;
    QPointer<ModelItem> m_song;
    int m_songId = noSong;
    QString m_startText;
    QString m_text;
};
