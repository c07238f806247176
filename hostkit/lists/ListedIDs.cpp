// SPDX-License-Identifier: MIT
#include "hostkit/lists/ListedIDs.h"

#include "hostkit/common/HostErrors.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QSet>

namespace Orvane {

namespace {

struct ListTexts {
    Q_DECLARE_TR_FUNCTIONS(LayerList)
};

[[noreturn]] void RaiseListError(HostError number, const QString& text, qint32 id)
{
    throw RunTimeError(int(number), text.arg(id), QStringLiteral("LayerList"));
}

} // namespace

void ListedIDs::RequireOnceEach(const std::vector<qint32>& ids)
{
    QSet<qint32> seen;
    seen.reserve(int(ids.size()));
    for (const qint32 id : ids) {
        if (id == 0)
            RaiseListError(HostError::ListInvalid, ListTexts::tr("A list has an entry with the ID %1."), 0);
        if (seen.contains(id))
            RaiseListError(HostError::ListInvalid, ListTexts::tr("A list has the ID %1 twice."), id);
        seen.insert(id);
    }
}

void ListedIDs::RaiseUnknownLayer(qint32 layerID)
{
    RaiseListError(HostError::UnknownLayer, ListTexts::tr("There is no layer with the ID %1."), layerID);
}

void ListedIDs::RaiseUnknownGroup(qint32 groupID)
{
    RaiseListError(HostError::UnknownGroup, ListTexts::tr("There is no group with the ID %1."), groupID);
}

} // namespace Orvane
