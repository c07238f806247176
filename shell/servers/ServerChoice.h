// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QAbstractButton;
class QComboBox;
class QWidget;

namespace Orvane {

/// Joins a list of the remembered servers with the buttons that add one and take one off the list. The last
/// server is chosen at first.
class ServerChoice : public QObject
{
    Q_OBJECT
public:
    /// The widgets; none is owned, all outlive this object.
    struct Widgets {
        QComboBox& list;
        QAbstractButton& add;
        QAbstractButton& forget;
    };

    /// owner: dialogs are shown over it.
    ServerChoice(Widgets widgets, QWidget& owner);

    /// The chosen server; empty while there is none.
    QString Server() const;
    /// Asks for a server and chooses it.
    void Add();

signals:
    /// Another server was chosen, or none.
    void Chosen(const QString& server);

private:
    void Fill(const QString& chosen);
    void Forget();
    void Take();

    Widgets m_widgets;
    QWidget& m_owner;
};

} // namespace Orvane
