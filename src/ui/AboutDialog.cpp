// SPDX-License-Identifier: MIT
#include "ui/AboutDialog.h"

#include "ui/MakerSite.h"
#include "ui/Pictures.h"
#include "ui/QuestionBox.h"
#include "ui_AboutDialog.h"

#include <QDesktopServices>

namespace {

const QString build = QStringLiteral("0207");

} // namespace

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::AboutDialog>())
{
    initPictures();
    m_form->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    m_form->lblAppName->setText(QCoreApplication::applicationName());
    m_form->lblAppVersion->setText(
        tr("Version %1").arg(QStringLiteral("%1 (%2)").arg(QCoreApplication::applicationVersion(), build)));
    removeIcons(m_form->buttonBox);
    showMaker();
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::showMaker()
{
    const QUrl site = makerPage(QStringLiteral("/"), QStringLiteral("app-about"));
    QString maker = QCoreApplication::organizationName().toHtmlEscaped();
    if (site.isValid())
        maker = QStringLiteral("<a href=\"%1\">%2</a>").arg(site.toString(QUrl::FullyEncoded).toHtmlEscaped(), maker);
    m_form->lblCopyright->setText(tr("Made by %1", "%1 is the maker's name").arg(maker));
    m_form->btnFacebook->setVisible(site.isValid());
    m_form->btnTwitter->setVisible(site.isValid());
}

void AboutDialog::on_btnFacebook_clicked()
{
    QDesktopServices::openUrl(makerPage(QStringLiteral("/facebook/"), QStringLiteral("app")));
}

void AboutDialog::on_btnTwitter_clicked()
{
    QDesktopServices::openUrl(makerPage(QStringLiteral("/twitter/"), QStringLiteral("app")));
}
