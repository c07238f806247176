// SPDX-License-Identifier: MIT
#include "component/dialog/rows/SampledIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace Orvane {

namespace {

int SampleWidth(int height)
{
    return height * 3 / 2;
}

int GapFor(int height)
{
    return std::max(2, height / 4);
}

/// Paints the image and the sample side by side.
class SampledIconEngine : public QIconEngine
{
public:
    SampledIconEngine(
        const QIcon& image, const LayerSample* sample, qint32 listBack, Qt::LayoutDirection direction)
        : m_image(image), m_sample(sample ? std::optional(*sample) : std::nullopt), m_listBack(listBack),
          m_isLeft(direction != Qt::RightToLeft)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const int side = rect.height();
        const int inset = std::max(1, side / 8);
        const int width = std::min(SampleWidth(side), rect.width() - side);
        const QRect image(m_isLeft ? rect.left() : rect.right() + 1 - side, rect.top(), side, side);
        const QRect sample(m_isLeft ? rect.right() + 1 - width : rect.left(), rect.top(), width, side);
        m_image.paint(painter, image, Qt::AlignCenter, mode, state);
        if (m_sample && width > 0)
            PaintLayerSample(*painter, sample.adjusted(0, inset, 0, -inset), *m_sample, m_listBack);
    }

    // The default leaves the pixels between the two undefined.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SampledIconEngine(*this); }

private:
    QIcon m_image;
    std::optional<LayerSample> m_sample;
    qint32 m_listBack;
    bool m_isLeft;
};

} // namespace

QSize SizeWithSample(const QSize& image)
{
    const int height = image.height();
    return {image.width() + GapFor(height) + SampleWidth(height), height};
}

QIcon WithSample(
    const QIcon& image, const LayerSample* sample, qint32 listBack, Qt::LayoutDirection direction)
{
    return QIcon(new SampledIconEngine(image, sample, listBack, direction));
}

} // namespace Orvane
