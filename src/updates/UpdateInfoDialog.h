// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

// Says that the maker's site is being asked for a newer version. Rejected when the user does not want to wait.
class UpdateInfoDialog : public QDialog
{
    Q_OBJECT

public:
    explicit UpdateInfoDialog(QWidget *parent = nullptr);
};
