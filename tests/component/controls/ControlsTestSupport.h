// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/Component.h"
#include "component/common/MessageTable.h"
#include "hosts/ValueMatchers.h"
#include "support/Errors.h"
#include "support/LinguistFile.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace Orvane::Testing {

constexpr int overflow = int(ErrorNumber::Overflow);
constexpr int subscriptOutOfRange = int(ErrorNumber::SubscriptOutOfRange);
constexpr int typeMismatch = int(ErrorNumber::TypeMismatch);

/// Shows the given translations during its lifetime, English afterwards.
class UsingMessages
{
public:
    explicit UsingMessages(const std::vector<MessagePair>& translations)
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("POBEX.LRT");
        WriteFile(path, LinguistDocument(translations));
        Component::Get().Messages().LoadFile(path);
    }
    ~UsingMessages() { Component::Get().Messages().LoadFile(QString()); }
    UsingMessages(const UsingMessages&) = delete;
    UsingMessages& operator=(const UsingMessages&) = delete;
};

} // namespace Orvane::Testing
