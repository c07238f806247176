// SPDX-License-Identifier: MIT
#include "sweep/SweepOptions.h"

#include <random>

namespace Orvane::Testing {

namespace {

int RandomUpTo(int highest)
{
    std::random_device source;
    return std::uniform_int_distribution<int>(1, highest)(source);
}

// Takes a number of at least 1 from the front.
bool TakeNumber(QStringList& words, int& number)
{
    number = words.isEmpty() ? 0 : words.takeFirst().toInt();
    return number > 0;
}

} // namespace

std::optional<SweepOptions> SweepOptions::Read(const QStringList& arguments)
{
    SweepOptions options;
    options.from = 0;
    QStringList words = arguments.mid(1);
    while (!words.isEmpty()) {
        const QString word = words.takeFirst();
        bool isRight = true;
        if (word == QLatin1String("--every"))
            isRight = TakeNumber(words, options.every);
        else if (word == QLatin1String("--from"))
            isRight = TakeNumber(words, options.from);
        else if (word == QLatin1String("--list"))
            options.isList = true;
        else if (word.startsWith(QLatin1Char('-')) || !options.filter.empty())
            isRight = false;
        else
            options.filter = word.toStdString();
        if (!isRight)
            return std::nullopt;
    }
    if (options.from == 0)
        options.from = RandomUpTo(options.every);
    return options;
}

} // namespace Orvane::Testing
