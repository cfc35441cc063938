// SPDX-License-Identifier: MIT
#include "model/LyricsExports.h"

#include "model/ModelItem.h"

// Without lyrics there is nothing to export, and a text file that is there stays as it is.
static bool canBeExported(const ModelItem &item)
{
    return item.url().isLocalFile() && !item.lyricsTag().isEmpty();
}

static void queueTo(LyricsFileWriter &writer, const ModelItem &item)
{
    writer.queueWrite(item.id(), item.url().toLocalFile(), item.lyricsTag());
}

LyricsExports::LyricsExports(QObject *parent)
    : QObject(parent)
{
}

bool LyricsExports::queue(const ModelItem &item)
{
    if (!canBeExported(item))
        return false;
    if (!m_writer) {
        m_writer.reset(new LyricsFileWriter);
        connect(m_writer.data(), &LyricsFileWriter::written, this, &LyricsExports::exported);
    }
    queueTo(*m_writer, item);
    return true;
}

void LyricsExports::queueAutomatic(const ModelItem &item)
{
    if (!canBeExported(item))
        return;
    if (!m_automaticWriter) {
        m_automaticWriter.reset(new LyricsFileWriter);
        connect(m_automaticWriter.data(), &LyricsFileWriter::written, this,
                [this](quint16, const QString &textFile, bool isWritten) {
                    if (!isWritten)
                        emit automaticFailed(textFile);
                });
    }
    queueTo(*m_automaticWriter, item);
}
