// SPDX-License-Identifier: MIT
#include "qgis/symbols/RendererLook.h"

#include "qgis/symbols/Looks.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <qgscategorizedsymbolrenderer.h>
#include <qgsfillsymbol.h>
#include <qgsgraduatedsymbolrenderer.h>
#include <qgsheatmaprenderer.h>
#include <qgsnullsymbolrenderer.h>
#include <qgsrulebasedrenderer.h>
#include <qgssinglesymbolrenderer.h>

#include <memory>

namespace Orvane {

namespace {

using Testing::Only;

constexpr qint32 Green = Bgr(0x00FF00);

QgsFillSymbol* Area(const char* colour)
{
    return QgsFillSymbol::createSimple(
        {{QStringLiteral("color"), QString::fromLatin1(colour)},
         {QStringLiteral("outline_color"), QStringLiteral("black")},
         {QStringLiteral("outline_width"), QStringLiteral("1")}});
}

std::unique_ptr<QgsGraduatedSymbolRenderer> Classes()
{
    auto renderer = std::make_unique<QgsGraduatedSymbolRenderer>(QStringLiteral("people"));
    renderer->addClass(QgsRendererRange(0, 10, Area("red"), QStringLiteral("few")));
    renderer->addClass(QgsRendererRange(10, 20, Area("blue"), QStringLiteral("many")));
    return renderer;
}

QColor FillOf(const QgsFeatureRenderer& renderer, int index)
{
    QgsRenderContext context;
    QgsSymbol* symbol = renderer.symbols(context).at(index);
    return symbol->symbolLayer(symbol->symbolLayerCount() - 1)->fillColor();
}

void ExpectClassesKeepTheirFills(const QgsFeatureRenderer& renderer)
{
    EXPECT_FALSE(ReadRenderer(&renderer, {})[LookColumn::FillForeColor]);
    EXPECT_EQ(ReadRenderer(&renderer, {})[LookColumn::LineThickness], 1);
    const ChangedRenderer changed = ChangeRenderer(&renderer, Only(LookColumn::LineThickness, -4), {});
    ASSERT_TRUE(changed.renderer);
    EXPECT_EQ(changed.renderer->type(), renderer.type());
    EXPECT_EQ(ReadRenderer(changed.renderer.get(), {})[LookColumn::LineThickness], -4);
    EXPECT_EQ(FillOf(*changed.renderer, 0), QColor(Qt::red));
    EXPECT_EQ(FillOf(*changed.renderer, 1), QColor(Qt::blue));
}

} // namespace

TEST(RendererLook, ClassesKeepTheirFillsWithAnotherLineWidth)
{
    ExpectClassesKeepTheirFills(*Classes());
}

TEST(RendererLook, CategoriesKeepTheirFillsWithAnotherLineWidth)
{
    QgsCategorizedSymbolRenderer renderer(QStringLiteral("kind"));
    renderer.addCategory(QgsRendererCategory(1, Area("red"), QStringLiteral("one")));
    renderer.addCategory(QgsRendererCategory(2, Area("blue"), QStringLiteral("two")));
    ExpectClassesKeepTheirFills(renderer);
}

TEST(RendererLook, RulesKeepTheirFillsWithAnotherLineWidth)
{
    auto* root = new QgsRuleBasedRenderer::Rule(nullptr);
    root->appendChild(new QgsRuleBasedRenderer::Rule(Area("red"), 0, 0, QStringLiteral("a = 1")));
    root->appendChild(new QgsRuleBasedRenderer::Rule(Area("blue"), 0, 0, QStringLiteral("a = 2")));
    ExpectClassesKeepTheirFills(QgsRuleBasedRenderer(root));
}

TEST(RendererLook, AFillColourThatTheUserSetsReachesEveryClass)
{
    const ChangedRenderer changed
        = ChangeRenderer(Classes().get(), Only(LookColumn::FillForeColor, Green), {});
    EXPECT_EQ(ReadRenderer(changed.renderer.get(), {})[LookColumn::FillForeColor], Green);
    EXPECT_EQ(changed.renderer->type(), QStringLiteral("graduatedSymbol"));
}

TEST(RendererLook, APatternTakesTheColourOfEachClass)
{
    const ChangedRenderer changed = ChangeRenderer(Classes().get(), Only(LookColumn::FillStyle, 6), {});
    const SymbolLook look = ReadRenderer(changed.renderer.get(), {});
    EXPECT_EQ(look[LookColumn::FillStyle], 6);
    EXPECT_FALSE(look[LookColumn::FillForeColor]);
    EXPECT_EQ(FillOf(*changed.renderer, 0), QColor(Qt::red));
    EXPECT_EQ(FillOf(*changed.renderer, 1), QColor(Qt::blue));
}

TEST(RendererLook, TheGivenRendererStaysAsItIs)
{
    const auto renderer = Classes();
    const QString before = renderer->dump();
    ChangeRenderer(renderer.get(), Only(LookColumn::FillForeColor, Green), {});
    EXPECT_EQ(renderer->dump(), before);
}

TEST(RendererLook, OtherRenderersAreNotKnownAndNotTouched)
{
    const QgsHeatmapRenderer heat;
    const QgsNullSymbolRenderer none;
    for (const QgsFeatureRenderer* renderer :
         {(const QgsFeatureRenderer*)&heat, (const QgsFeatureRenderer*)&none}) {
        EXPECT_EQ(ReadRenderer(renderer, {}), SymbolLook());
        EXPECT_FALSE(ChangeRenderer(renderer, Only(LookColumn::Color, Green), {}).renderer);
    }
    EXPECT_EQ(ReadRenderer(nullptr, {}), SymbolLook());
    EXPECT_FALSE(ChangeRenderer(nullptr, Only(LookColumn::Color, Green), {}).renderer);
}

TEST(RendererLook, NothingIsMadeForNoChange)
{
    EXPECT_FALSE(ChangeRenderer(Classes().get(), {}, {}).renderer);
}

TEST(RendererLook, AFillStyleThatIsNoneRaises)
{
    EXPECT_THROW(ChangeRenderer(Classes().get(), Only(LookColumn::FillStyle, 40), {}), RunTimeError);
    EXPECT_THROW(ChangeRenderer(Classes().get(), Only(LookColumn::FillStyle, -1), {}), RunTimeError);
}

} // namespace Orvane
