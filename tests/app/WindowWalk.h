// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QWidget;

// Whether a text of the program is one that its language should have replaced.
class Catalogue
{
public:
    // Of this language's file among the sources.
    explicit Catalogue(const QString &language);
    ~Catalogue();

    bool isEnglish(const QString &text) const;

private:
    struct Texts;
    const std::unique_ptr<const Texts> m_texts;
};

// Looks at a window that is shown: what is English, cut or lies over other words, and what the Tab key does not reach
// or reaches out of order. One sentence a fault.
QStringList faultsOf(QWidget *window, const Catalogue &catalogue);
