// SPDX-License-Identifier: MIT
#include "ui/SettingsDialog.h"

#include "lyrics/LyricsProvider.h"
#include "lyrics/SearchProvider.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "network/Endpoints.h"
#include "network/ProxyTester.h"
#include "network/SettingsStore.h"
#include "settings/Settings.h"
#include "settings/SettingsChange.h"
#include "ui/AppPalette.h"
#include "ui/LanguageNames.h"
#include "ui/Legibility.h"
#include "ui/Pictures.h"
#include "ui/QuestionBox.h"
#include "ui/UsageConsent.h"
#include "ui_SettingsDialog.h"

#include <QCoreApplication>
#include <QEvent>
#include <QIntValidator>
#include <QLocale>
#include <QShowEvent>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace {

constexpr std::chrono::seconds proxyTestDelay(3); // after the last change
constexpr int proxyTypeCount = 3;
constexpr int portWidth = 80; // for five digits of usual text
constexpr QSize signSize(16, 16);
// How much of the text's colour goes into the outlines of the sites, which the style then darkens.
constexpr double outlineOnDark = 0.6;
constexpr double outlineOnLight = 0.3;

// The order of sites as a text: "First;;Second::0", the second one being disabled.
const QString siteSeparator = QStringLiteral(";;");
const QString markSeparator = QStringLiteral("::");
const QString disabledMark = QStringLiteral("0");

// Whether new versions are looked for by themselves, as the updater reads it.
bool checksForUpdates()
{
    return storedValue(SettingsStore(), SettingsKey::UpdaterPeriod).toLongLong() > 0;
}

void select(QComboBox *box, int index)
{
    box->setCurrentIndex(std::max(index, 0));
}

// In the size that goes with the desktop's text.
void showSign(QLabel *label, const QString &name)
{
    const QIcon sign = pictureIcon(QStringLiteral(":/img/%1.png").arg(name));
    label->setPixmap(sign.pixmap(label->window()->windowHandle(), signSize * Legibility().textScale()));
}

bool isChecked(const QListWidgetItem &item)
{
    return item.checkState() == Qt::Checked;
}

} // namespace

SettingsDialog::SettingsDialog(Settings *settings, UsageConsent *consent, QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::SettingsDialog>())
    , m_settings(settings)
    , m_consent(consent)
{
    initPictures();
    m_form->setupUi(this);
    restrictPort();
    removeIcons(m_form->buttonBox);
    showSign(m_form->icoExclamation, QStringLiteral("exclamation"));
    showSign(m_form->icoOrderWarning, QStringLiteral("exclamation"));
    m_form->icoExclamation->hide();
    alignProxyLabels();
    setUpProxyTest();
    fillSelectors();
    setUpReports();
    outlineOrderChecks();
    writeUi();
    trackChanges();
}

SettingsDialog::~SettingsDialog() = default;

// Digits only: "8,080" is a number in some countries, and is not read as one.
void SettingsDialog::restrictPort()
{
    auto *validator = new QIntValidator(0, 65535, this);
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(plain);
    m_form->proxyPortLineEdit->setValidator(validator);
    m_form->proxyPortLineEdit->setMaximumWidth(qRound(portWidth * Legibility().textScale()));
}

// The row of the type stands in a layout of its own, outside of the frame that can be disabled.
void SettingsDialog::alignProxyLabels()
{
    const QLabel *labels[] = {m_form->proxyTypeLabel, m_form->proxyAddressLabel, m_form->proxyPortLabel,
                              m_form->proxyUsernameLabel, m_form->proxyPasswordLabel};
    int width = 0;
    for (const QLabel *label : labels)
        width = std::max(width, label->sizeHint().width());
    m_form->proxyTypeLabel->setMinimumWidth(width);
    m_form->proxyAddressLabel->setMinimumWidth(width);
}

void SettingsDialog::setUpProxyTest()
{
    // What stands below must not move while one types.
    m_form->proxyTestTextLabel->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_proxyTester = new ProxyTester(endpointUrl(Endpoint::ProxyTest, QStringLiteral("/")), this);
    connect(m_proxyTester, &ProxyTester::stateChanged, this, &SettingsDialog::updateProxyTestStatus);
    m_proxyTestTimer = new QTimer(this);
    m_proxyTestTimer->setObjectName(QStringLiteral("proxyTestTimer"));
    m_proxyTestTimer->setSingleShot(true);
    m_proxyTestTimer->setInterval(proxyTestDelay);
    connect(m_proxyTestTimer, &QTimer::timeout, this, &SettingsDialog::proxyTestStart);
}

void SettingsDialog::fillSelectors()
{
    m_form->languageComboBox->addItem(tr("Automatic"), QString());
    for (const QString &code : QCoreApplication::instance()->property("languageList").toStringList())
        m_form->languageComboBox->addItem(languageName(code), code);
    m_form->proxyTypeComboBox->addItem(tr("None"), 0);
    m_form->proxyTypeComboBox->addItem(QStringLiteral("SOCKS5"), 1);
    m_form->proxyTypeComboBox->addItem(QStringLiteral("HTTP"), 2);
    m_form->seachProviderComboBox->addItems(SearchProvider().names());
}

void SettingsDialog::setUpReports()
{
    m_form->checkUpdatesCheckBox->setVisible(endpointExists(Endpoint::Maker));
    const bool isPossible = m_consent && m_consent->isPossible();
    m_form->usageStatisticsCheckBox->setVisible(isPossible);
    m_form->btnUsageExample->setVisible(isPossible);
    m_form->usageForbiddenLabel->setVisible(isPossible && m_consent->isForbidden());
    if (!isPossible)
        return;
    connect(m_form->btnUsageExample, &QPushButton::clicked, m_consent, &UsageConsent::showExample);
    m_form->usageStatisticsCheckBox->setEnabled(!m_consent->isForbidden());
}

// The style draws the outline of a check box in a shade of the window's colour, which is hardly seen on the list's.
void SettingsDialog::outlineOrderChecks()
{
    QPalette colors = palette();
    const QColor text = colors.color(QPalette::Text);
    const QColor ground = colors.color(QPalette::Base);
    const double strength = ground.lightness() < text.lightness() ? outlineOnDark : outlineOnLight;
    colors.setColor(QPalette::Window, AppPalette::mixedColor(text, ground, strength));
    m_form->orderList->setPalette(colors);
}

void SettingsDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        outlineOrderChecks();
    QDialog::changeEvent(event);
}

// Before it is placed; what it holds has its whole size only now.
void SettingsDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        adjustSize();
    QDialog::showEvent(event);
}

// Changes

void SettingsDialog::trackChanges()
{
    const auto selected = QOverload<int>::of(&QComboBox::currentIndexChanged);
    for (QComboBox *box : {m_form->languageComboBox, m_form->seachProviderComboBox, m_form->proxyTypeComboBox})
        connect(box, selected, this, &SettingsDialog::contentChanged);
    connect(m_form->languageComboBox, selected, this, &SettingsDialog::onLanguageChanged);
    connect(m_form->lyrcisFontSizeSpinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &SettingsDialog::contentChanged);
    for (QCheckBox *box :
         {m_form->prependNewLineCheckBox, m_form->saveFilesListCheckBox, m_form->generateLyricsFileAuto,
          m_form->checkUpdatesCheckBox, m_form->usageStatisticsCheckBox})
        connect(box, &QCheckBox::clicked, this, &SettingsDialog::contentChanged);
    trackProxyChanges();
    trackOrderChanges();
}

void SettingsDialog::trackProxyChanges()
{
    const auto selected = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_form->proxyTypeComboBox, selected, this, &SettingsDialog::updateProxyControls);
    connect(m_form->proxyTypeComboBox, selected, this, &SettingsDialog::proxyChanged);
    connect(m_form->proxyAuthenticationcheckBox, &QCheckBox::toggled, this, &SettingsDialog::updateProxyControls);
    connect(m_form->proxyAuthenticationcheckBox, &QCheckBox::toggled, this, &SettingsDialog::proxyChanged);
    for (QLineEdit *field : {m_form->proxyAddressLineEdit, m_form->proxyPortLineEdit, m_form->proxyUsernameLineEdit,
                             m_form->proxyPasswordLineEdit})
        connect(field, &QLineEdit::textEdited, this, &SettingsDialog::proxyChanged);
    connect(this, &SettingsDialog::proxyChanged, this, &SettingsDialog::onProxyChanged);
    connect(this, &SettingsDialog::proxyChanged, this, &SettingsDialog::contentChanged);
}

void SettingsDialog::trackOrderChanges()
{
    const QListWidget *list = m_form->orderList;
    for (const auto &changed : {&SettingsDialog::contentChanged, &SettingsDialog::updateOrderButtons}) {
        connect(list->model(), &QAbstractItemModel::rowsMoved, this, changed);
        connect(list, &QListWidget::itemChanged, this, changed);
    }
    connect(list, &QListWidget::currentRowChanged, this, &SettingsDialog::updateOrderButtons);
}

void SettingsDialog::onLanguageChanged()
{
    m_form->icoExclamation->show();
}

// Settings and form

void SettingsDialog::writeUi()
{
    select(m_form->languageComboBox, m_form->languageComboBox->findData(m_settings->language()));
    select(m_form->seachProviderComboBox,
           m_form->seachProviderComboBox->findText(SearchProvider().effectiveName(m_settings->searchProvider())));
    select(m_form->proxyTypeComboBox, m_form->proxyTypeComboBox->findData(m_settings->proxyType()));
    m_form->proxyAddressLineEdit->setText(m_settings->proxyAddress());
    m_form->proxyPortLineEdit->setText(QString::number(m_settings->proxyPort()));
    m_form->proxyAuthenticationcheckBox->setChecked(m_settings->proxyAuthentication());
    m_form->proxyUsernameLineEdit->setText(m_settings->proxyUsername());
    m_form->proxyPasswordLineEdit->setText(m_settings->proxyPassword());
    m_form->lyrcisFontSizeSpinBox->setValue(m_settings->lyricsFontSize());
    m_form->prependNewLineCheckBox->setChecked(m_settings->prependNewLine());
    m_form->saveFilesListCheckBox->setChecked(m_settings->saveFilesList());
    m_form->generateLyricsFileAuto->setChecked(m_settings->generateLyricsFileAuto());
    writeReports();
    writeOrder();
    updateProxyControls();
    updateOrderButtons();
    updateProxyTestStatus();
}

void SettingsDialog::readUi()
{
    m_settings->setLanguage(m_form->languageComboBox->currentData().toString());
    m_settings->setLyricsFontSize(m_form->lyrcisFontSizeSpinBox->value());
    m_settings->setSearchProvider(m_form->seachProviderComboBox->currentText());
    m_settings->setPrependNewLine(m_form->prependNewLineCheckBox->isChecked());
    m_settings->setSaveFilesList(m_form->saveFilesListCheckBox->isChecked());
    m_settings->setGenerateLyricsFileAuto(m_form->generateLyricsFileAuto->isChecked());
    const int type = m_form->proxyTypeComboBox->currentData().toInt();
    if (type < proxyTypeCount)
        m_settings->setProxyType(type);
    m_settings->setProxyAddress(proxyAddress());
    m_settings->setProxyPort(m_form->proxyPortLineEdit->text().toUShort());
    m_settings->setProxyAuthentication(m_form->proxyAuthenticationcheckBox->isChecked());
    m_settings->setProxyUsername(m_form->proxyUsernameLineEdit->text());
    m_settings->setProxyPassword(m_form->proxyPasswordLineEdit->text());
    m_settings->setProvidersOrder(readOrder());
    readReports();
}

void SettingsDialog::accept()
{
    readUi();
    QDialog::accept();
}

void SettingsDialog::done(int result)
{
    m_proxyTestTimer->stop();
    m_proxyTester->stop();
    QDialog::done(result);
}

// What the program sends by itself

void SettingsDialog::writeReports()
{
    m_form->checkUpdatesCheckBox->setChecked(checksForUpdates());
    m_form->usageStatisticsCheckBox->setChecked(m_consent && m_consent->isGiven());
}

// Only what was changed: an untouched box is no answer to a question, and does not change a period of the user's own.
void SettingsDialog::readReports() const
{
    const bool checks = m_form->checkUpdatesCheckBox->isChecked();
    if (checks != checksForUpdates()) {
        SettingsChange change;
        change.set(SettingsKey::UpdaterPeriod, checks ? keyDefault(SettingsKey::UpdaterPeriod) : 0);
        change.commit();
    }
    if (m_consent && m_form->usageStatisticsCheckBox->isChecked() != m_consent->isGiven())
        m_consent->answer(!m_consent->isGiven());
}

// The proxy

// A pasted address often has blanks around it.
QString SettingsDialog::proxyAddress() const
{
    return m_form->proxyAddressLineEdit->text().trimmed();
}

QNetworkProxy SettingsDialog::readProxy() const
{
    ProxyConfiguration said;
    said.type = m_form->proxyTypeComboBox->currentData().toInt();
    said.address = proxyAddress();
    said.port = m_form->proxyPortLineEdit->text().toUShort();
    said.authentication = m_form->proxyAuthenticationcheckBox->isChecked();
    said.username = m_form->proxyUsernameLineEdit->text();
    said.password = m_form->proxyPasswordLineEdit->text();
    return said.toProxy();
}

void SettingsDialog::updateProxyControls()
{
    const bool authentication = m_form->proxyAuthenticationcheckBox->isChecked();
    m_form->proxyFrame->setEnabled(m_form->proxyTypeComboBox->currentData().toInt() != 0);
    for (QWidget *widget : {m_form->proxyUsernameLabel, m_form->proxyPasswordLabel})
        widget->setEnabled(authentication);
    for (QWidget *widget : {m_form->proxyUsernameLineEdit, m_form->proxyPasswordLineEdit})
        widget->setEnabled(authentication);
}

void SettingsDialog::onProxyChanged()
{
    m_proxyTester->stop();
    // Without an address the test would ask the test page directly, behind the back of who wants a proxy.
    if (m_form->proxyTypeComboBox->currentData().toInt() != 0 && !proxyAddress().isEmpty())
        m_proxyTestTimer->start();
    else
        m_proxyTestTimer->stop();
    updateProxyTestStatus();
}

void SettingsDialog::proxyTestStart()
{
    m_proxyTester->start(readProxy());
}

void SettingsDialog::updateProxyTestStatus()
{
    const QString picture = [state = m_proxyTester->state()] {
        switch (state) {
        case ProxyTester::Working:
            return QStringLiteral("working");
        case ProxyTester::Error:
            return QStringLiteral("error");
        case ProxyTester::Success:
            return QStringLiteral("success");
        default:
            return QStringLiteral("idle");
        }
    }();
    const QString words = proxyTestWords();
    showSign(m_form->proxyTestStatusLabel, QStringLiteral("proxy_") + picture);
    m_form->proxyTestStatusLabel->setAccessibleName(words);
    m_form->proxyTestTextLabel->setText(words);
}

QString SettingsDialog::proxyTestWords() const
{
    if (m_form->proxyTypeComboBox->currentData().toInt() == 0)
        return tr("No proxy is used.");
    if (proxyAddress().isEmpty())
        return tr("No address: no proxy is used.");
    switch (m_proxyTester->state()) {
    case ProxyTester::Working:
        return tr("The proxy is being tested...");
    case ProxyTester::Error:
        return tr("The proxy does not work.");
    case ProxyTester::Success:
        return m_proxyTester->ranOutOfTime() ? tr("No error within %1 seconds.").arg(m_proxyTester->timeoutSeconds())
                                             : tr("The proxy works.");
    default:
        return tr("Not tested yet.");
    }
}

// The order of sites

void SettingsDialog::writeOrder()
{
    QListWidget *list = m_form->orderList;
    const QString current = list->currentItem() ? list->currentItem()->text() : QString();
    list->clear();
    for (const QString &entry : m_settings->providersOrder().split(siteSeparator, Qt::SkipEmptyParts)) {
        const QStringList parts = entry.split(markSeparator);
        addSite(parts.first().trimmed(), parts.value(1) != disabledMark);
    }
    for (const auto &provider : makeProviders(nullptr)) {
        // As the search compares them.
        if (list->findItems(provider->name(), Qt::MatchFixedString).isEmpty())
            addSite(provider->name(), true);
    }
    const QList<QListWidgetItem *> same = list->findItems(current, Qt::MatchExactly);
    list->setCurrentItem(same.isEmpty() ? list->item(0) : same.first());
}

void SettingsDialog::addSite(const QString &name, bool enabled)
{
    if (name.isEmpty())
        return;
    auto *item = new QListWidgetItem(name);
    item->setData(Qt::UserRole, name);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled);
    item->setCheckState(enabled ? Qt::Checked : Qt::Unchecked);
    m_form->orderList->addItem(item);
}

QString SettingsDialog::readOrder() const
{
    QStringList entries;
    for (int row = 0; row < m_form->orderList->count(); ++row) {
        const QListWidgetItem *item = m_form->orderList->item(row);
        const QString name = item->data(Qt::UserRole).toString();
        entries.append(isChecked(*item) ? name : name + markSeparator + disabledMark);
    }
    return entries.join(siteSeparator);
}

void SettingsDialog::on_btnUp_clicked()
{
    moveCurrentSite(-1);
}

void SettingsDialog::on_btnDown_clicked()
{
    moveCurrentSite(1);
}

void SettingsDialog::moveCurrentSite(int places)
{
    QListWidget *list = m_form->orderList;
    const int row = list->currentRow();
    const int target = row + places;
    if (row < 0 || target < 0 || target >= list->count())
        return;
    list->insertItem(target, list->takeItem(row));
    list->setCurrentRow(target);
    // The button that is about to be disabled would pass the focus on to the one that undoes this.
    const bool atEnd = target == (places < 0 ? 0 : list->count() - 1);
    if (atEnd && (m_form->btnUp->hasFocus() || m_form->btnDown->hasFocus()))
        list->setFocus();
    updateOrderButtons();
    emit contentChanged();
}

void SettingsDialog::on_btnEnable_clicked()
{
    if (QListWidgetItem *item = m_form->orderList->currentItem())
        item->setCheckState(isChecked(*item) ? Qt::Unchecked : Qt::Checked);
    updateOrderButtons();
}

void SettingsDialog::updateOrderButtons()
{
    const QListWidget *list = m_form->orderList;
    const int row = list->currentRow();
    m_form->btnUp->setEnabled(row >= 1);
    m_form->btnDown->setEnabled(row >= 0 && row < list->count() - 1);
    m_form->btnEnable->setEnabled(row >= 0);
    m_form->btnEnable->setText(row >= 0 && isChecked(*list->item(row)) ? tr("Disable") : tr("Enable"));
    warnWithoutSites();
}

void SettingsDialog::warnWithoutSites()
{
    const QListWidget *list = m_form->orderList;
    int enabled = 0;
    for (int row = 0; row < list->count(); ++row)
        enabled += isChecked(*list->item(row));
    const bool allDisabled = list->count() > 0 && enabled == 0;
    m_form->icoOrderWarning->setVisible(allDisabled);
    m_form->lblOrderWarning->setStyleSheet(allDisabled ? QStringLiteral("color: red") : QString());
    m_form->lblOrderWarning->setText(allDisabled ? tr("Warning!!! You have disabled all sources.") : QString());
}
