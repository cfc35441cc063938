// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressBar>

// A thin line that fills up with the highlight colour, for the status bar.
class SlimProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit SlimProgressBar(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
