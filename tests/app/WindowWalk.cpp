// SPDX-License-Identifier: MIT
#include "WindowWalk.h"

#include "support/TestTable.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

// A screen that is still in use; a panel takes some of its height.
constexpr QSize smallScreen(1366, 728);
constexpr int mostStops = 60;

// A text as it may stand on the screen: with anything in place of its placeholders.
QRegularExpression shown(const QString &source)
{
    static const QRegularExpression placeholder("%(?:\\\\?\\d|n|\\w{3,})"_s);
    QString pattern = QRegularExpression::escape(source);
    pattern.replace("\\%"_s, "%"_s).replace(placeholder, ".*"_s);
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

struct Shown
{
    QString text;
    bool isCut;
};

bool isCut(const QWidget *widget)
{
    if (!widget->isVisible())
        return false;
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap())
        return label->height() < label->heightForWidth(label->width());
    if (const auto *field = qobject_cast<const QLineEdit *>(widget))
        return field->width() < field->fontMetrics().horizontalAdvance(field->text());
    const bool isButton = qobject_cast<const QAbstractButton *>(widget);
    const QSize needed = isButton ? widget->sizeHint() : widget->minimumSizeHint();
    return widget->width() < needed.width() || widget->height() < widget->minimumSizeHint().height();
}

QVector<Shown> textsIn(const QWidget *window)
{
    QVector<Shown> all{{window->windowTitle(), false}};
    for (const QAction *action : window->findChildren<QAction *>())
        all.append({action->text(), false});
    for (const QWidget *widget : window->findChildren<QWidget *>())
        all.append({widget->toolTip(), false});
    for (const QLabel *label : window->findChildren<QLabel *>())
        all.append({label->text(), isCut(label)});
    for (const QAbstractButton *button : window->findChildren<QAbstractButton *>())
        all.append({button->text(), !button->text().isEmpty() && isCut(button)});
    for (const QLineEdit *field : window->findChildren<QLineEdit *>())
        all.append({field->text(), isCut(field)});
    for (const QGroupBox *box : window->findChildren<QGroupBox *>())
        all.append({box->title(), false});
    return all;
}

// The ink of a text in the scene; empty for other items and for those that are not seen.
QRectF inkOf(const QQuickItem *item)
{
    if (!item->isVisible() || !item->inherits("QQuickText") || item->property("text").toString().isEmpty())
        return {};
    const QRectF ink(0, 0, std::min(item->width(), item->property("contentWidth").toReal()),
                     item->property("contentHeight").toReal());
    return item->mapRectToItem(item->parentItem(), ink).adjusted(0, 1, 0, -1); // the leading may touch
}

bool liesOverWords(const QQuickItem *item)
{
    const QRectF ink = inkOf(item);
    const QList<QQuickItem *> siblings = item->parentItem() ? item->parentItem()->childItems() : QList<QQuickItem *>();
    return !ink.isEmpty() && std::any_of(siblings.begin(), siblings.end(), [&](const QQuickItem *sibling) {
        return sibling != item && inkOf(sibling).intersects(ink);
    });
}

// Against what the desktop has; the smallest print of the scene is a little smaller.
bool isSmall(const QQuickItem *item)
{
    const QFont font = item->property("font").value<QFont>();
    return QFontInfo(font).pixelSize() * 1.5 < QFontInfo(QApplication::font()).pixelSize();
}

// Whatever has words in the scene. A text that ends in an ellipsis on purpose shows words of the user's.
QVector<Shown> textsIn(const QQuickItem *item)
{
    QVector<Shown> all;
    const QString text = item->property("text").toString();
    const bool isFileName = item->property("elide").toInt() == Qt::ElideMiddle;
    const bool isUsers = isFileName || text.contains(QLatin1String("Anna"));
    const bool isHigh = item->parentItem() && inkOf(item).height() > item->parentItem()->height();
    const bool isCut = item->isVisible() && item->property("truncated").toBool() && !isUsers;
    if (!text.isEmpty())
        all.append({text, isCut || isHigh || isSmall(item) || liesOverWords(item)});
    for (const QQuickItem *child : item->childItems())
        all += textsIn(child);
    return all;
}

// The entries of the scene's menus, which are drawn when they open only.
QVector<Shown> entriesIn(const QQuickItem *root)
{
    QVector<Shown> all;
    for (const QObject *entry : root->findChildren<QObject *>()) {
        if (entry->inherits("QQuickMenuItem1"))
            all.append({entry->property("text").toString(), false});
    }
    return all;
}

// What can be reached with the keyboard, as a screen reader finds it

using Nodes = QVector<QAccessibleInterface *>;

void collect(QAccessibleInterface *node, Nodes &all)
{
    if (!node || node->state().invisible)
        return;
    all.append(node);
    for (int i = 0; i < node->childCount(); ++i)
        collect(node->child(i), all);
}

bool isControl(const QAccessibleInterface *node)
{
    static const QVector<QAccessible::Role> roles{
        QAccessible::Button,   QAccessible::CheckBox, QAccessible::EditableText, QAccessible::ComboBox,
        QAccessible::SpinBox,  QAccessible::Slider,   QAccessible::ListItem,     QAccessible::PageTab,
        QAccessible::MenuItem, QAccessible::Link,     QAccessible::Splitter,     QAccessible::List,
    };
    return roles.contains(node->role());
}

// Part of a control that stands for it.
bool isInner(const QObject *object)
{
    const QObject *parent = object ? object->parent() : nullptr;
    return !object || object->inherits("QComboBoxListView") || qobject_cast<const QAbstractSpinBox *>(parent) ||
           object->objectName().startsWith(QLatin1String("qt_"));
}

// The way of the Tab key

struct Stop
{
    const QObject *object;
    QRect place; // on the screen
};

Stop currentStop()
{
    QWidget *widget = QApplication::focusWidget();
    const auto *scene = qobject_cast<QQuickWidget *>(widget);
    const QQuickItem *item = scene ? scene->quickWindow()->activeFocusItem() : nullptr;
    if (item)
        return {item, item->mapRectToScene(item->boundingRect()).toRect().translated(scene->mapToGlobal({0, 0}))};
    return {widget, widget ? QRect(widget->mapToGlobal({0, 0}), widget->size()) : QRect()};
}

QVector<Stop> stopsOf(QWidget *window)
{
    QApplication::setActiveWindow(window);
    QVector<Stop> stops;
    for (Stop stop = currentStop(); stop.object && stops.size() < mostStops; stop = currentStop()) {
        const bool isSame = !stops.isEmpty() && stops.last().object == stop.object; // a label has a stop for each link
        if (!isSame &&
            std::any_of(stops.begin(), stops.end(), [&](const Stop &other) { return other.object == stop.object; }))
            break;
        stops.append(stop);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return stops;
}

// As one reads: down, and to the right.
bool isBefore(const QRect &first, const QRect &second)
{
    const bool isAbove = first.bottom() <= second.top() && first.left() < second.right();
    const bool isSameLine = first.bottom() > second.top() && second.bottom() > first.top();
    return isAbove || (isSameLine && first.right() <= second.left());
}

QStringList misplaced(const QVector<Stop> &stops)
{
    QStringList faults;
    for (int i = 1; i < stops.size(); ++i) {
        const Stop &stop = stops.at(i);
        const bool isFirst = std::none_of(stops.begin(), stops.end(),
                                          [&](const Stop &other) { return isBefore(other.place, stop.place); });
        if (!isFirst && isBefore(stop.place, stops.at(i - 1).place))
            faults.append("the Tab key goes back to %1 %2"_s.arg(QLatin1String(stop.object->metaObject()->className()),
                                                                 stop.object->objectName()));
    }
    return faults;
}

QStringList unreached(const Nodes &nodes, const QVector<Stop> &stops)
{
    static const QVector<QAccessible::Role> reachedOtherwise{QAccessible::MenuItem, QAccessible::ListItem,
                                                             QAccessible::PageTab};
    QStringList faults;
    for (const QAccessibleInterface *node : nodes) {
        const QObject *object = node->object();
        if (!isControl(node) || reachedOtherwise.contains(node->role()) || isInner(object) || node->state().disabled)
            continue;
        const auto isStop = [object](const Stop &stop) {
            const auto *widget = qobject_cast<const QWidget *>(object);
            return stop.object == object || (widget && stop.object == widget->focusProxy());
        };
        if (std::none_of(stops.begin(), stops.end(), isStop) && object->objectName() != QLatin1String("songList"))
            faults.append("not reached by Tab: %1 %2 %3"_s.arg(QLatin1String(object->metaObject()->className()),
                                                               object->objectName(), node->text(QAccessible::Name)));
    }
    return faults;
}

} // namespace

// The texts of a language's file: what stands in the sources, and all that may stand in their place.
struct Catalogue::Texts
{
    QVector<QRegularExpression> sources; // those that are to look different in this language
    QSet<QString> translations;
};

Catalogue::Catalogue(const QString &language)
    : m_texts([&language] {
        auto texts = std::make_unique<Texts>();
        QFile file(QStringLiteral(VERSEWELL_TRANSLATIONS_DIR "/versewell_%1.ts").arg(language));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("no translation into %s", qPrintable(language));
        QXmlStreamReader xml(&file);
        QString source;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement() && xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            else if (xml.isStartElement() &&
                     (xml.name() == QLatin1String("translation") || xml.name() == QLatin1String("numerusform"))) {
                const QString translation = xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
                texts->translations.insert(translation);
                // One letter and placeholders alone would match anything.
                if (translation != source && source.count(QRegularExpression("[a-z]"_s)) > 2)
                    texts->sources.append(shown(source));
            }
        }
        return texts;
    }())
{
}

Catalogue::~Catalogue() = default;

bool Catalogue::isEnglish(const QString &text) const
{
    return !m_texts->translations.contains(text) &&
           std::any_of(m_texts->sources.begin(), m_texts->sources.end(),
                       [&text](const QRegularExpression &source) { return source.match(text).hasMatch(); });
}

QStringList faultsOf(QWidget *window, const Catalogue &catalogue)
{
    QStringList faults;
    QVector<Shown> texts = textsIn(window);
    for (const QQuickWidget *scene : window->findChildren<QQuickWidget *>())
        texts += textsIn(scene->rootObject()) + entriesIn(scene->rootObject());
    for (const Shown &shown : qAsConst(texts)) {
        if (catalogue.isEnglish(shown.text))
            faults.append("English: %1"_s.arg(shown.text));
        if (shown.isCut)
            faults.append("cut, small or over other words: %1"_s.arg(shown.text));
    }
    if (smallScreen.expandedTo(window->size()) != smallScreen)
        faults.append("too large for a small screen: %1 x %2"_s.arg(window->width()).arg(window->height()));
    if (qobject_cast<QFileDialog *>(window))
        return faults; // what else it has is Qt's or the desktop's
    Nodes nodes;
    collect(QAccessible::queryAccessibleInterface(window), nodes);
    for (const QAccessibleInterface *node : qAsConst(nodes)) {
        if (catalogue.isEnglish(node->text(QAccessible::Name)))
            faults.append("English, as it is heard: %1"_s.arg(node->text(QAccessible::Name)));
    }
    const QVector<Stop> stops = stopsOf(window);
    return faults + misplaced(stops) + unreached(nodes, stops);
}
