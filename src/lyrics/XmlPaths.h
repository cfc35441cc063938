// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamAttributes>

#include <vector>

class QXmlStreamReader;

// An XML document that is asked for what stands at a path: the names of elements from the root on, joined by ".".
// Each step is one of
//   track           the first child of that name
//   track[2]        the third one, since they are counted from 0
//   track[a=b,c=d]  the first one whose attributes have these values; neither may hold ".", "," or "="
// Names and values are compared as they stand, prefixes and letter case included.
//
// A document is UTF-8. One that is not well-formed, that has a document type (and so entities of its own), that has
// more than 64 attributes in a tag, or that is longer than 64 KiB, where those asked for have a few, is as good as
// empty.
class XmlPaths
{
public:
    explicit XmlPaths(const QByteArray &document);

    [[nodiscard]] bool isEmpty() const { return m_nodes.empty(); }
    // The text of the element itself, without that of its children, trimmed; empty when there is no such element.
    [[nodiscard]] QString text(const QString &path) const;
    // How many elements the last step fits, below the element that the steps before it lead to.
    [[nodiscard]] int count(const QString &path) const;

private:
    struct Node
    {
        QString name;
        QXmlStreamAttributes attributes;
        QString text;
        // Indices of nodes; 0, which is the root and no child, when there is none.
        std::size_t firstChild = 0;
        std::size_t lastChild = 0;
        std::size_t nextSibling = 0;
    };
    struct Step;

    void read(const QString &document);
    std::size_t addNode(const std::vector<std::size_t> &open, const QXmlStreamReader &reader);
    [[nodiscard]] static bool fits(const Node &node, const Step &step);
    [[nodiscard]] std::vector<const Node *> matches(const Node &first, const Step &step) const;
    [[nodiscard]] std::vector<const Node *> matches(const QString &path) const;

    // In the order of the document, so that the root comes first.
    std::vector<Node> m_nodes;
};
