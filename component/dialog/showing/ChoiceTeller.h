// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <optional>
#include <vector>

class QWidget;

namespace Orvane {

class LayerTrees;

/// Tells a host that implements IChoiceWatch which layers are chosen, after each event that chose others.
/// What the host or its database raises is shown to the user.
class ChoiceTeller
{
public:
    /// Neither is owned; both outlive this object.
    ChoiceTeller(LayerTrees& trees, QWidget& form);

    /// Another list may be shown now.
    void TellSoon() { m_soon.start(); }

private:
    std::vector<qint32> ReadChosen() const;
    void Tell();

    LayerTrees& m_trees;
    QWidget& m_form;
    QTimer m_soon;
    std::optional<std::vector<qint32>> m_told = std::vector<qint32>(); // nothing: it is to be told again
};

} // namespace Orvane
