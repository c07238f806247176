// SPDX-License-Identifier: MIT
#include "component/dialog/rows/LayerSamples.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/dialog/rows/LayerRow.h"

#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/Transaction.h>

#include <QPointer>

#include <utility>

namespace Orvane {

namespace {

bool HasPicture(qint32 fillStyle)
{
    return fillStyle >= 0 && fillStyle < FillPictures::Count && fillStyle != SolidFill
        && fillStyle != HollowFill;
}

} // namespace

LayerSamples::LayerSamples(std::function<bool()> mayRead, QObject* parent)
    : QObject(parent), m_mayRead(std::move(mayRead))
{
}

const LayerSample* LayerSamples::Of(qint32 layerID) const
{
    const Entry* entry = m_entries.object(layerID);
    return entry && entry->sample ? &*entry->sample : nullptr;
}

void LayerSamples::Want(qint32 layerID)
{
    const Entry* entry = m_entries.object(layerID);
    if (entry && entry->age == m_age)
        return;
    if (m_wanted.isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { ReadWanted(); }, Qt::QueuedConnection);
    m_wanted.insert(layerID);
}

void LayerSamples::Expire()
{
    ++m_age;
    if (!m_entries.isEmpty())
        emit Changed();
}

// What the host raises is not shown: nobody has asked for these values.
void LayerSamples::ReadWanted()
{
    const QSet<qint32> wanted = std::exchange(m_wanted, {});
    if (!HasClient() || !m_mayRead())
        return;
    for (const qint32 layerID : wanted) // not again, if reading fails
        m_entries.insert(layerID, new Entry{std::nullopt, m_age});
    const QPointer<LayerSamples> self(this);
    GuardPaint([&] { Read(wanted); });
    if (self)
        emit Changed();
}

void LayerSamples::Read(const QSet<qint32>& layerIDs)
{
    Transaction transaction(Client().GetDatabase());
    for (const qint32 layerID : layerIDs)
        GuardPaint([&] { m_entries.insert(layerID, new Entry{ReadOne(layerID), m_age}); });
    transaction.Commit();
}

std::optional<LayerSample> LayerSamples::ReadOne(qint32 layerID)
{
    const std::optional<LayerStyle> row = ReadLayerRow(Client(), layerID);
    std::optional<LayerSample> sample = row ? SampleOf(*row) : std::nullopt;
    if (sample && HasPicture(sample->fillStyle))
        sample->picture = Picture(sample->fillStyle);
    return sample;
}

MonochromeBitmap LayerSamples::Picture(qint32 fillStyle)
{
    if (m_pictures.Picture(fillStyle).width == 0) {
        m_pictures.Load(fillStyle);
        m_pictures.SetPicture(fillStyle, ShellServices().FillPattern(FillPatternKind, fillStyle));
    }
    return m_pictures.Picture(fillStyle);
}

} // namespace Orvane
