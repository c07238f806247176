// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace Orvane {

/// A field with a magnifying glass before its text, as large as the text.
class FindEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit FindEdit(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QRect GlassArea() const;
    void MakeRoom();
};

} // namespace Orvane
