// SPDX-License-Identifier: MIT
#include "lyrics/XmlPaths.h"

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>

namespace {

// QXmlStreamReader compares every attribute of a tag with all others: 256 kB of them take 14 s.
constexpr int mostAttributes = 64;

// A megabyte of elements takes most of a second.
constexpr int mostBytes = 64 * 1024;

// An attribute value cannot hold "<", so this counts those of a tag, and the equals signs of the text behind it.
bool hasTooManyAttributes(const QString &document)
{
    int count = 0;
    return std::any_of(document.begin(), document.end(), [&count](QChar c) {
        count = c == QLatin1Char('<') ? 0 : count + (c == QLatin1Char('=') ? 1 : 0);
        return count > mostAttributes;
    });
}

} // namespace

// One step of a path, taken apart.
struct XmlPaths::Step
{
    struct Condition
    {
        QString attribute;
        QString value;
    };

    explicit Step(const QString &text)
        : name(text)
    {
        static const QRegularExpression indexed(
            QRegularExpression::anchoredPattern(QStringLiteral("(.*)\\[(\\d+)\\]")));
        static const QRegularExpression conditional(
            QRegularExpression::anchoredPattern(QStringLiteral("(.*)\\[((([^,=]+=[^,=]+),?)+)\\]")));
        QRegularExpressionMatch match = indexed.match(text);
        if (match.hasMatch()) {
            name = match.captured(1);
            bool fits = false;
            const int number = match.captured(2).toInt(&fits);
            index = fits ? number : std::numeric_limits<int>::max();
            return;
        }
        match = conditional.match(text);
        if (!match.hasMatch())
            return;
        name = match.captured(1);
        for (const QString &condition : match.captured(2).split(QLatin1Char(','), Qt::SkipEmptyParts))
            conditions.append({condition.section(QLatin1Char('='), 0, 0), condition.section(QLatin1Char('='), 1)});
    }

    QString name;
    QVector<Condition> conditions;
    // Which one of those that fit; -1: the first, or all when they are counted.
    int index = -1;
};

XmlPaths::XmlPaths(const QByteArray &document)
{
    if (document.size() <= mostBytes)
        read(QString::fromUtf8(document));
}

// A namespace that is not declared is no reason to refuse a document, so they are not looked at.
void XmlPaths::read(const QString &document)
{
    if (hasTooManyAttributes(document))
        return;
    QXmlStreamReader reader(document);
    reader.setNamespaceProcessing(false);
    std::vector<std::size_t> open;
    while (!reader.atEnd() && reader.tokenType() != QXmlStreamReader::DTD) {
        reader.readNext();
        if (reader.isStartElement())
            open.push_back(addNode(open, reader));
        else if (reader.isEndElement())
            open.pop_back();
        else if (reader.isCharacters() && !open.empty())
            m_nodes[open.back()].text.append(reader.text());
    }
    if (reader.hasError() || reader.tokenType() == QXmlStreamReader::DTD)
        m_nodes.clear();
}

std::size_t XmlPaths::addNode(const std::vector<std::size_t> &open, const QXmlStreamReader &reader)
{
    const std::size_t added = m_nodes.size();
    m_nodes.push_back({reader.qualifiedName().toString(), reader.attributes(), {}});
    if (open.empty())
        return added;
    Node &parent = m_nodes[open.back()];
    if (parent.firstChild == 0)
        parent.firstChild = added;
    else
        m_nodes[parent.lastChild].nextSibling = added;
    parent.lastChild = added;
    return added;
}

bool XmlPaths::fits(const Node &node, const Step &step)
{
    return node.name == step.name &&
           std::all_of(step.conditions.begin(), step.conditions.end(), [&node](const Step::Condition &condition) {
               return node.attributes.hasAttribute(condition.attribute) &&
                      node.attributes.value(condition.attribute) == condition.value;
           });
}

// Those among a node and its next siblings that the step means.
std::vector<const XmlPaths::Node *> XmlPaths::matches(const Node &first, const Step &step) const
{
    std::vector<const Node *> found;
    for (const Node *node = &first;; node = &m_nodes[node->nextSibling]) {
        if (fits(*node, step))
            found.push_back(node);
        if (node->nextSibling == 0)
            break;
    }
    if (step.index < 0)
        return found;
    const auto index = static_cast<std::size_t>(step.index);
    return index < found.size() ? std::vector<const Node *>{found[index]} : std::vector<const Node *>{};
}

std::vector<const XmlPaths::Node *> XmlPaths::matches(const QString &path) const
{
    std::vector<const Node *> found;
    if (isEmpty())
        return found;
    const Node *first = &m_nodes.front();
    for (const QString &text : path.split(QLatin1Char('.'))) {
        if (!first)
            return {};
        found = matches(*first, Step(text));
        const std::size_t child = found.empty() ? 0 : found.front()->firstChild;
        first = child > 0 ? &m_nodes[child] : nullptr;
    }
    return found;
}

QString XmlPaths::text(const QString &path) const
{
    const std::vector<const Node *> found = matches(path);
    return found.empty() ? QString() : found.front()->text.trimmed();
}

int XmlPaths::count(const QString &path) const
{
    return static_cast<int>(matches(path).size());
}
