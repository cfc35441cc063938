// SPDX-License-Identifier: MIT
#include "app/RecoveryDialog.h"
#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ModelItem.h"
#include "model/ProxyModel.h"
#include "settings/Settings.h"
#include "ui/AboutDialog.h"
#include "ui/AppPalette.h"
#include "ui/ExitWidget.h"
#include "ui/MainWindow.h"
#include "ui/SettingsDialog.h"
#include "updates/UpdateDialog.h"
#include "updates/UpdateInfoDialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QQuickItem>
#include <QQuickWidget>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <memory>

namespace {

// The texts of a language's file: what stands in the sources, and all that may stand in their place.
struct Texts
{
    QVector<QRegularExpression> sources; // those that are to look different in this language
    QSet<QString> translations;
};

// A text as it may stand on the screen: with anything in place of its placeholders.
QRegularExpression shown(const QString &source)
{
    static const QRegularExpression placeholder(QStringLiteral("%(?:\\\\?\\d|n|\\w{3,})"));
    QString pattern = QRegularExpression::escape(source);
    pattern.replace(QStringLiteral("\\%"), QStringLiteral("%")).replace(placeholder, QStringLiteral(".*"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

Texts textsOf(const QString &language)
{
    Texts texts;
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
            texts.translations.insert(translation);
            // One letter and placeholders alone would match anything.
            if (translation != source && source.count(QRegularExpression(QStringLiteral("[a-z]"))) > 2)
                texts.sources.append(shown(source));
        }
    }
    return texts;
}

bool isEnglish(const QString &text, const Texts &texts)
{
    return !texts.translations.contains(text) &&
           std::any_of(texts.sources.begin(), texts.sources.end(),
                       [&text](const QRegularExpression &source) { return source.match(text).hasMatch(); });
}

struct Shown
{
    QString text;
    bool isCut;
};

QVector<Shown> textsIn(const QWidget *window)
{
    QVector<Shown> all{{window->windowTitle(), false}};
    for (const QAction *action : window->findChildren<QAction *>())
        all.append({action->text(), false});
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        all.append({widget->toolTip(), false});
        all.append({widget->accessibleName(), false});
    }
    for (const QLabel *label : window->findChildren<QLabel *>())
        all.append({label->text(),
                    label->isVisible() && !label->wordWrap() && label->width() < label->minimumSizeHint().width()});
    for (const QAbstractButton *button : window->findChildren<QAbstractButton *>())
        all.append({button->text(),
                    button->isVisible() && !button->text().isEmpty() && button->width() < button->sizeHint().width()});
    for (const QGroupBox *box : window->findChildren<QGroupBox *>())
        all.append({box->title(), false});
    for (const QTabWidget *tabs : window->findChildren<QTabWidget *>()) {
        for (int i = 0; i < tabs->count(); ++i)
            all.append({tabs->tabText(i), false});
    }
    return all;
}

// Whatever has words in the scene. A text that ends in an ellipsis on purpose shows words of the user's.
QVector<Shown> textsIn(const QQuickItem *item)
{
    QVector<Shown> all;
    const QString text = item->property("text").toString();
    const bool isCut = item->property("truncated").toBool() && !text.contains(QLatin1String("Anna"));
    if (!text.isEmpty())
        all.append({text, item->isVisible() && isCut});
    for (const QQuickItem *child : item->childItems())
        all += textsIn(child);
    return all;
}

ReleasedVersions newerVersion()
{
    return {{QStringLiteral("1.5.6"), {}, {}, QDate(2025, 1, 1), {}},
            {QStringLiteral("9.0"), {}, QStringLiteral("- x"), QDate(2026, 1, 1), {}}};
}

} // namespace

// Goes through the program's windows in two languages that differ much from English.
class tst_Languages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void nothingIsEnglishOrCut_data();
    void nothingIsEnglishOrCut();

private:
    void listSongs();
    void look(const QVector<Shown> &all, const char *place);
    void look(QWidget *dialog);

    QTemporaryDir m_folder;
    QTranslator m_translator;
    Texts m_texts;
    QStringList m_faults;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<MainModel> m_model;
    std::unique_ptr<ProxyModel> m_proxy;
    std::unique_ptr<FolderScanner> m_scanner;
    AppPalette m_palette;
};

void tst_Languages::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.5.6"));
    qputenv("QMLSCENE_DEVICE", "softwarecontext");
}

void tst_Languages::init()
{
    m_settings = std::make_unique<Settings>();
    m_model = std::make_unique<MainModel>();
    m_model->setReaderProgram(QStringLiteral(VERSEWELL_READER));
    m_proxy = std::make_unique<ProxyModel>();
    m_proxy->setSourceModel(m_model.get());
    m_scanner = std::make_unique<FolderScanner>();
}

void tst_Languages::cleanup()
{
    QCoreApplication::removeTranslator(&m_translator);
}

void tst_Languages::listSongs()
{
    QList<QUrl> songs;
    for (const char *name : {"lyrics.mp3", "untagged.mp3", "plain.flac"})
        songs.append(QUrl::fromLocalFile(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + QLatin1String(name)));
    m_model->add(songs);
    QTRY_VERIFY(m_model->itemAt(2)->tagsLoaded());
    m_model->itemAt(2)->setProcessState(ModelItem::ProcessWaiting);
}

void tst_Languages::look(const QVector<Shown> &all, const char *place)
{
    for (const Shown &shown : all) {
        if (isEnglish(shown.text, m_texts))
            m_faults.append(QStringLiteral("English in %1: %2").arg(QLatin1String(place), shown.text));
        if (shown.isCut)
            m_faults.append(QStringLiteral("cut in %1: %2").arg(QLatin1String(place), shown.text));
    }
}

void tst_Languages::look(QWidget *dialog)
{
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    look(textsIn(dialog), dialog->metaObject()->className());
    if (auto *tabs = dialog->findChild<QTabWidget *>()) {
        for (int i = 1; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            look(textsIn(dialog), dialog->metaObject()->className());
        }
    }
    dialog->hide();
}

void tst_Languages::nothingIsEnglishOrCut_data()
{
    QTest::addColumn<bool>("changedWhileRunning");
    QTest::newRow("de") << false;
    QTest::newRow("ru") << false;
    QTest::newRow("fr") << true;
}

void tst_Languages::nothingIsEnglishOrCut()
{
    QFETCH(bool, changedWhileRunning);
    const QString language = QString::fromLatin1(QTest::currentDataTag());
    m_texts = textsOf(language);
    m_faults.clear();
    QVERIFY(m_translator.load(QStringLiteral(VERSEWELL_LOCALE_DIR "/versewell.%1.qm").arg(language)));
    if (!changedWhileRunning)
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
    MainWindow window({m_model.get(), m_proxy.get(), m_scanner.get(), m_settings.get(), &m_palette, this});
    window.resize(640, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    if (changedWhileRunning) {
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
        QCoreApplication::processEvents();
    }
    QQuickItem *root = window.findChild<QQuickWidget *>()->rootObject();
    look(textsIn(root), "the empty scene");
    listSongs();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        m_proxy->itemClicked(row);
        QTest::qWait(0);
        look(textsIn(root), "the scene");
    }
    m_proxy->selectAll();
    look(textsIn(root), "the scene with all selected");
    look(textsIn(&window), "the window");
    SettingsDialog settings(m_settings.get(), nullptr, &window);
    AboutDialog about(&window);
    ExitWidget exit(m_model.get(), &window);
    RecoveryDialog recovery;
    UpdateDialog update(newerVersion(), QDate(2026, 5, 1), UpdateDialog::Occasion::Asked, &window);
    UpdateInfoDialog updateInfo(&window);
    for (QWidget *dialog :
         {static_cast<QWidget *>(&settings), static_cast<QWidget *>(&about), static_cast<QWidget *>(&exit),
          static_cast<QWidget *>(&recovery), static_cast<QWidget *>(&update), static_cast<QWidget *>(&updateInfo)})
        look(dialog);
    m_model->itemAt(2)->setProcessState(ModelItem::ProcessIdle);
    m_faults.removeDuplicates();
    QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join(QLatin1Char('\n'))));
}

QTEST_MAIN(tst_Languages)

#include "tst_languages.moc"
