// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// One line of plain text whose end is cut off where it does not fit, and then shown whole in the tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &text, QWidget *parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
