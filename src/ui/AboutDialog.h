// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class AboutDialog;
}

// Tells the program's name and version, and leads to its maker's pages where the maker has a site.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);
    ~AboutDialog() override;

private slots:
    // Bound to the form by their names.
    void on_btnFacebook_clicked();
    void on_btnTwitter_clicked();

private:
    void showMaker();

    const std::unique_ptr<Ui::AboutDialog> m_form;
};
