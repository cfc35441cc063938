// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QObject>
#include <QStringList>

// Searches the web in the desktop's browser: knows the search engines and opens the chosen one's page for a query.
// Whether the desktop could open it is not known here. Main thread only.
class SearchProvider : public QObject
{
    Q_OBJECT

public:
    // The engines' base addresses are those of this moment (Endpoints.h).
    explicit SearchProvider(QObject *parent = nullptr);

    // The engines in the order in which they are offered; the first one is the default.
    [[nodiscard]] QStringList names() const { return m_names; }

    // The engine that search() takes for this name.
    [[nodiscard]] QString effectiveName(const QString &name) const;

    // Opens the page of the engine called `name`, spelled exactly so, for any text; another name, an empty one too,
    // stands for the default engine.
    Q_INVOKABLE void search(const QString &query, const QString &name) const;

private:
    // Engine by engine, the address of a search with "{{QUERY}}" for the encoded text.
    QStringList m_names;
    QByteArrayList m_templates;
};
