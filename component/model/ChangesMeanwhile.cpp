// SPDX-License-Identifier: MIT
#include "component/model/ChangesMeanwhile.h"

#include "component/model/LayerRowValues.h"

#include <algorithm>

namespace Orvane {

ChangesMeanwhile::ChangesMeanwhile(const IStyleEditorClient& client, const StyleEdits& edits)
    : m_edits(edits), m_all{edits.style, edits.quickMode}, m_reader(client)
{
    m_seen.reserve(edits.seen.size());
    for (const SeenLayer& layer : edits.seen)
        m_seen.insert_or_assign(layer.layerID, layer.fingerprint);
}

const RowEdits& ChangesMeanwhile::EditsFor(const IRecordset& row, qint32 layerID)
{
    if (m_seen.empty())
        return m_all;
    const LayerRowValues values(row);
    if (IsAsSeen(values, layerID))
        return m_all;
    m_reduced = m_all;
    const LayerStyle now = m_reader.Read(row, values);
    for (qint16 slot = Slot::Code; slot < LayerStyle::SlotCount; ++slot)
        Reconcile(m_reduced, now, slot);
    ReconcileMode(m_reduced, m_reader.ReadMode(row, values).value_or(QuickMode::Various));
    m_isCodeChanged = m_isCodeChanged || !m_edits.asRead.Compare(Slot::Code, now.lsGet(Slot::Code));
    return m_reduced;
}

bool ChangesMeanwhile::IsAsSeen(const LayerRowValues& values, qint32 layerID) const
{
    const auto seen = m_seen.find(layerID);
    return seen != m_seen.end() && seen->second == values.Fingerprint();
}

void ChangesMeanwhile::Reconcile(RowEdits& edits, const LayerStyle& now, qint16 slot)
{
    const Value mine = m_edits.style.lsGet(slot);
    const Value was = m_edits.asRead.lsGet(slot);
    if (mine.IsNull() || now.Compare(slot, was) || now.Compare(slot, mine))
        return;
    if (m_edits.asRead.Compare(slot, mine))
        edits.style.lsSet(slot, Value::Null());
    else if (!was.IsNull()) // where the layers differed, nobody knows what this one had
        Note(slot, now.lsGet(slot));
}

void ChangesMeanwhile::ReconcileMode(RowEdits& edits, qint16 now)
{
    if (now == m_edits.modeAsRead || now == edits.quickMode)
        return;
    if (edits.quickMode == m_edits.modeAsRead)
        edits.quickMode = QuickMode::Various;
    else if (edits.quickMode != QuickMode::Various && m_edits.modeAsRead != QuickMode::Various)
        Note(EditConflict::Mode, now);
}

void ChangesMeanwhile::Note(qint16 slot, const Value& stored)
{
    if (m_edits.overwrites)
        return;
    const auto known = std::find_if(m_conflicts.begin(), m_conflicts.end(), [slot](const EditConflict& each) {
        return each.slot == slot;
    });
    if (known == m_conflicts.end())
        m_conflicts.push_back({slot, stored, 1});
    else
        ++known->layers;
}

} // namespace Orvane
