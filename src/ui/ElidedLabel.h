// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// One line of plain text whose end is cut off where it does not fit, and then shown whole in the tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    void setWords(const QString &words);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
