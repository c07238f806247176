// SPDX-License-Identifier: MIT
#include "store/KeyLists.h"

#include <QStringList>

#include <algorithm>

namespace Orvane {

namespace {

qsizetype LengthOfList(qsizetype keys)
{
    qsizetype length = 1;
    while (length < keys)
        length *= 2;
    return std::min(length, KeyLists::Longest);
}

QString ListOfParameters(qsizetype first, qsizetype count)
{
    QStringList parameters;
    for (qsizetype number = first; number < first + count; ++number)
        parameters << u'?' + QString::number(number);
    return u'(' + parameters.join(QLatin1String(", ")) + u')';
}

} // namespace

void KeyLists::ForEachBlock(
    const std::vector<qint32>& keys, const std::vector<Value>& first, const Visitor& visitor)
{
    const auto count = qsizetype(keys.size());
    for (qsizetype begin = 0; begin < count; begin += Longest) {
        const qsizetype end = std::min(begin + Longest, count);
        const qsizetype length = LengthOfList(end - begin);
        std::vector<Value> values = first;
        values.reserve(first.size() + size_t(length));
        values.insert(values.end(), keys.begin() + begin, keys.begin() + end);
        values.resize(first.size() + size_t(length), keys.at(size_t(end - 1)));
        visitor(ListOfParameters(qsizetype(first.size()) + 1, length), values);
    }
}

} // namespace Orvane
