// SPDX-License-Identifier: MIT
#include "ui/LineSpacing.h"

#include <QFontMetricsF>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QtQml>

void LineSpacing::registerType()
{
    qmlRegisterType<LineSpacing>("com.quillmarsh", 1, 0, "LineSpacing");
}

void LineSpacing::setDocument(QQuickTextDocument *document)
{
    if (document == m_document)
        return;
    m_document = document;
    apply();
    emit changed();
}

void LineSpacing::setProportion(qreal proportion)
{
    if (qFuzzyCompare(proportion, m_proportion))
        return;
    m_proportion = proportion;
    apply();
    emit changed();
}

void LineSpacing::setFont(const QFont &font)
{
    if (font == m_font)
        return;
    m_font = font;
    emit changed();
}

qreal LineSpacing::lineHeight() const
{
    return QFontMetricsF(m_font).height() * m_proportion;
}

void LineSpacing::apply()
{
    QTextDocument *text = m_document ? m_document->textDocument() : nullptr;
    if (!text)
        return;
    QTextBlockFormat format;
    format.setLineHeight(100 * m_proportion, QTextBlockFormat::ProportionalHeight);
    text->setUndoRedoEnabled(false);
    QTextCursor all(text);
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
    text->setUndoRedoEnabled(true);
}
