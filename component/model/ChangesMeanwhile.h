// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerRowReader.h"
#include "component/model/LayerStyleApplying.h"

#include <QtGlobal>

#include <unordered_map>
#include <vector>

namespace Orvane {

/// What is to be written to one row: a part of what is to be written to all.
struct RowEdits {
    LayerStyle style;
    qint16 quickMode = QuickMode::Various;
};

/// Compares rows that are about to be written with what was read of them, so that nothing is written over the
/// changes of somebody else untold.
class ChangesMeanwhile
{
public:
    /// Neither is owned; both outlive this object.
    ChangesMeanwhile(const IStyleEditorClient& client, const StyleEdits& edits);

    /// What to write to the layer's current row: without values that were not edited, if the row holds
    /// others now. Edited ones that were changed are noted as conflicts. Raises what the host and its
    /// database raise.
    const RowEdits& EditsFor(const IRecordset& row, qint32 layerID);

    bool HasConflicts() const { return !m_conflicts.empty(); }
    /// One for each property that was edited here and changed elsewhere.
    std::vector<EditConflict> TakeConflicts() { return std::move(m_conflicts); }
    /// True if a row holds another code than the one that was read.
    bool IsCodeChanged() const { return m_isCodeChanged; }

private:
    bool IsAsSeen(const LayerRowValues& values, qint32 layerID) const;
    void Reconcile(RowEdits& edits, const LayerStyle& now, qint16 slot);
    void ReconcileMode(RowEdits& edits, qint16 now);
    void Note(qint16 slot, const Value& stored);

    const StyleEdits& m_edits;
    RowEdits m_all;
    RowEdits m_reduced;
    LayerRowReader m_reader;
    std::unordered_map<qint32, quint64> m_seen; // QHash ends the program when there is no memory
    std::vector<EditConflict> m_conflicts;
    bool m_isCodeChanged = false;
};

} // namespace Orvane
