// SPDX-License-Identifier: MIT
#include "ui/LyricsEdit.h"

#include "model/MainModel.h"

// Text as an editor hands it back when nobody has typed: one kind of line break, and no no-break spaces. Without this
// a draft would count as modified the moment it is shown.
static QString editorText(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const QChar lineBreak :
         {QChar(QChar::CarriageReturn), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        text.replace(lineBreak, QLatin1Char('\n'));
    return text.replace(QChar::Nbsp, QLatin1Char(' '));
}

LyricsEdit::LyricsEdit(MainModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
}

LyricsEdit::~LyricsEdit() = default;

ModelItem *LyricsEdit::song() const
{
    return m_song;
}

void LyricsEdit::begin(ModelItem *song)
{
    if (!song || !song->tagsLoaded() || !song->editable() || modified() || song == m_song)
        return;
    const QString text = editorText(song->lyricsTag());
    change(song, text, text);
}

void LyricsEdit::save()
{
    if (!active())
        return;
    emit aboutToSave();
    ModelItem *song = m_song;
    const QString text = m_text;
    if (song && m_model->item(song->id()) == song && !song->tagsLoaded())
        return;
    // The song has the text before the edit ends, so that whoever shows one or the other never shows the old one.
    const int id = m_songId;
    const bool isGiven = giveText(song, text);
    cancel();
    if (isGiven)
        m_model->writeTags(static_cast<quint16>(id));
}

bool LyricsEdit::giveText(ModelItem *song, const QString &text)
{
    if (!song || m_model->item(song->id()) != song || !song->tagsLoaded())
        return false;
    // What nobody changed goes back as the song has it, down to the kind of its line breaks.
    song->setEditedLyricsTag(editorText(song->lyricsTag()) == text ? song->lyricsTag() : text);
    return true;
}

void LyricsEdit::write(ModelItem *song, const QString &text)
{
    if (giveText(song, text))
        m_model->writeTags(song->id());
}

void LyricsEdit::handOver()
{
    if (m_song && modified())
        m_song->setEditedLyricsTag(m_text);
    cancel();
}

void LyricsEdit::cancel()
{
    change(nullptr, {}, {});
}

void LyricsEdit::setText(const QString &text)
{
    if (active())
        change(m_song, m_startText, text);
}

// Takes the new state as a whole and then tells what has changed.
void LyricsEdit::change(ModelItem *song, const QString &startText, const QString &text)
{
    const int oldId = m_songId;
    const QString oldText = m_text;
    const bool wasModified = modified();
    if (song != m_song) {
        if (m_song)
            disconnect(m_song, &QObject::destroyed, this, nullptr);
        if (song)
            connect(song, &QObject::destroyed, this, &LyricsEdit::cancel);
    }
    m_song = song;
    m_songId = song ? song->id() : noSong;
    m_startText = startText;
    m_text = text;
    if (m_songId != oldId)
        emit songIdChanged(m_songId);
    if (m_text != oldText)
        emit textChanged(m_text);
    if (modified() != wasModified)
        emit modifiedChanged(modified());
    if (active() != (oldId != noSong))
        emit activeChanged(active());
}
