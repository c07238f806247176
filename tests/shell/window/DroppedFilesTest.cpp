// SPDX-License-Identifier: MIT
#include "shell/window/DroppedFiles.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class DroppedFilesTest : public testing::Test
{
protected:
    bool Take(const char* url, Qt::DropActions possible, Qt::KeyboardModifiers keys = {})
    {
        m_data.setUrls({QUrl(QLatin1String(url))});
        m_event = std::make_unique<QDropEvent>(QPointF(10, 10), possible, &m_data, Qt::LeftButton, keys);
        return TakeAsCopy(*m_event);
    }

    QMimeData m_data;
    std::unique_ptr<QDropEvent> m_event;
};

} // namespace

TEST_F(DroppedFilesTest, FilesAreCopiedEvenIfTheOtherProgramWouldMoveThem)
{
    EXPECT_TRUE(
        Take("file:///data/a.gpkg", Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::ShiftModifier));
    EXPECT_TRUE(m_event->isAccepted());
    EXPECT_EQ(m_event->dropAction(), Qt::CopyAction);
}

TEST_F(DroppedFilesTest, AMoveAloneIsRefused)
{
    EXPECT_FALSE(Take("file:///data/a.gpkg", Qt::MoveAction));
    EXPECT_FALSE(m_event->isAccepted());
}

TEST_F(DroppedFilesTest, WhatIsOnNoDiskIsRefused)
{
    EXPECT_FALSE(Take("https://example.org/a.gpkg", Qt::CopyAction));
    EXPECT_FALSE(m_event->isAccepted());
}

} // namespace Orvane
