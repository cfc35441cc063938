// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QObject>
#include <QPointer>
#include <QQuickTextDocument>

class QTextDocument;

// Gives the lines of a TextEdit of the scene more height, which the type itself cannot: type LineSpacing of the module
// com.quillmarsh. Main thread only.
class LineSpacing : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY changed)
    // Line height as a multiple of the font's own.
    Q_PROPERTY(qreal proportion READ proportion WRITE setProportion NOTIFY changed)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY changed)
    // Pixels from one line to the next.
    Q_PROPERTY(qreal lineHeight READ lineHeight NOTIFY changed)

public:
    using QObject::QObject;

    // The module must know the type before a document with it is loaded.
    static void registerType();

    [[nodiscard]] QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    [[nodiscard]] qreal proportion() const { return m_proportion; }
    void setProportion(qreal proportion);
    [[nodiscard]] QFont font() const { return m_font; }
    void setFont(const QFont &font);
    [[nodiscard]] qreal lineHeight() const;

    // To be called when the whole text was replaced: that takes the spacing away. It forgets what can be undone.
    Q_INVOKABLE void apply();

signals:
    void changed();

private:
    QPointer<QQuickTextDocument> m_document;
    qreal m_proportion = 1;
    QFont m_font;
};
