// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Orvane {

/// One line of text in a status bar, shortened with dots where the bar is narrow; the tooltip then has all of
/// it.
class StatusText : public QWidget
{
    Q_OBJECT
public:
    explicit StatusText(QWidget* parent = nullptr);

    void SetText(const QString& text);
    const QString& Text() const { return m_text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString m_text;
};

} // namespace Orvane
