// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLabel;

namespace Orvane {

/// A strip at the upper edge of the map that tells something which needs no answer. It stays until it is
/// closed or another text replaces it; the map can be used meanwhile.
class MapNotice : public QFrame
{
    Q_OBJECT
public:
    /// The notice is at first hidden. map: owns this object, which follows its width.
    explicit MapNotice(QWidget& map);

    /// Shows the lines; hides the notice if there are none.
    void Show(const QStringList& lines);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Place();

    QWidget& m_map;
    QLabel* m_text; // owned by this object
};

} // namespace Orvane
