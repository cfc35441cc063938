// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QNetworkProxy>

#include <memory>

class ProxyTester;
class QListWidgetItem;
class QTimer;
class Settings;
class UsageConsent;

namespace Ui {
class SettingsDialog;
}

// The preferences: shows the settings, and stores them when it is accepted. While it is open, the proxy that is being
// typed in is tested, some seconds after the last change.
//
// The languages that can be chosen are the codes in the application object's property "languageList".
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    // Settings and consent are not owned and must outlive the dialog. Without a consent, or where nobody is to be asked
    // for one, nothing is said of usage events; nor of checks for updates where the maker has no site.
    SettingsDialog(Settings *settings, UsageConsent *consent, QWidget *parent = nullptr);
    ~SettingsDialog() override;

    void accept() override;
    void done(int result) override;

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

signals:
    // The user changed something.
    void contentChanged();
    // The user changed something about the proxy.
    void proxyChanged();

private slots:
    // From the form into the settings.
    void readUi();
    // From the settings into the form.
    void writeUi();
    void onLanguageChanged();
    void updateProxyControls();
    // The proxy as it stands in the form.
    QNetworkProxy readProxy() const;
    void onProxyChanged();
    void updateProxyTestStatus();
    void proxyTestStart();
    void updateOrderButtons();
    // Bound to the form by their names.
    void on_btnDown_clicked();
    void on_btnUp_clicked();
    void on_btnEnable_clicked();

private:
    void alignProxyLabels();
    void setUpProxyTest();
    void fillSelectors();
    void setUpReports();
    void outlineOrderChecks();
    void restrictPort();
    [[nodiscard]] QString proxyAddress() const;
    [[nodiscard]] QString proxyTestWords() const;
    void trackChanges();
    void trackProxyChanges();
    void trackOrderChanges();

    void writeReports();
    void readReports() const;
    void writeOrder();
    void addSite(const QString &name, bool enabled);
    [[nodiscard]] QString readOrder() const;
    void moveCurrentSite(int places);
    void warnWithoutSites();

    const std::unique_ptr<Ui::SettingsDialog> m_form;
    Settings *m_settings;
    UsageConsent *m_consent;
    ProxyTester *m_proxyTester;
    QTimer *m_proxyTestTimer;
};
