// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Short texts that the component keeps with the map, each under a key of its own; users never see them. A
/// host may implement it besides IStyleEditorClient: its application object implements both, and the
/// component finds it by a dynamic cast. Without it, or if no notes are kept, the component does not offer
/// what needs them. hostkit/StandardClient.h has a ready-made one.
///
///     class MyClient : public IStyleEditorClient, public IMapNotes
///     {
///         bool IMapNotes_KeepsNotes() const override { return true; }
///         QString IMapNotes_Note(const QString& key) override { return m_map.Text(key); }
///         void IMapNotes_SetNote(const QString& key, const QString& text) override
///         {
///             m_map.SetText(key, text); // stored, taken back and copied as the layers are
///         }
///     };
class IMapNotes
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 5;

    virtual ~IMapNotes() = default;
    IMapNotes(const IMapNotes&) = delete;
    IMapNotes& operator=(const IMapNotes&) = delete;

    /// True if notes are stored as long as the layers are: if a map that is opened again still has them. May
    /// change from call to call, for example for a map that cannot be changed.
    bool KeepsNotes() const { return IMapNotes_KeepsNotes(); }

    /// The text that SetNote stored last under the key; empty if there is none. Called often: it should be
    /// quick. May raise what the host's database raises.
    QString Note(const QString& key) { return IMapNotes_Note(key); }

    /// Stores the text in the map; an empty one removes the note. It belongs to the transaction of
    /// IStyleEditorClient::GetDatabase that is open, and to the same operation as the layers that are changed
    /// before the next RedrawMap: a host with undo takes both back together. text: some characters for each
    /// range of layer IDs, so up to a few hundred kilobytes. May raise what the host's database raises.
    void SetNote(const QString& key, const QString& text) { IMapNotes_SetNote(key, text); }

protected:
    IMapNotes() = default;

private:
    virtual bool IMapNotes_KeepsNotes() const = 0;
    virtual QString IMapNotes_Note(const QString& key) = 0;
    virtual void IMapNotes_SetNote(const QString& key, const QString& text) = 0;
};

} // namespace Orvane
