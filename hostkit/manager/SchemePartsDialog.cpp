// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemePartsDialog.h"

#include "hostkit/manager/SchemeValueTexts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <array>

namespace Orvane {

namespace {

constexpr int RemarkWidth = 56; // average characters

constexpr std::array PartNames{"chkFlags", "chkAppearance", "chkScales"}; // in the order of AllSchemeParts

QLabel* MakeRemark(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setMinimumWidth(RemarkWidth * parent->fontMetrics().averageCharWidth());
    return label;
}

} // namespace

SchemePartsDialog::SchemePartsDialog(const QString& title, SchemeParts holds, QWidget* parent)
    : QDialog(parent), m_rows(new QVBoxLayout(this)), m_name(new QLineEdit(this))
{
    setObjectName(QStringLiteral("dlgSchemeParts"));
    setWindowTitle(title);
    m_name->setObjectName(QStringLiteral("bedText"));
    m_name->hide();
    m_rows->addWidget(m_name);
    m_rows->addWidget(new QLabel(tr("The scheme holds:"), this));
    for (const SchemePart part : AllSchemeParts)
        AddPart(part, holds.testFlag(part));
    m_parts.front()->setFocus();
    m_rows->addStretch(1);
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_rows->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    EnableOK();
}

void SchemePartsDialog::AddPart(SchemePart part, bool isTicked)
{
    auto* box = new QCheckBox(SchemeValueTexts::Part(part), this);
    box->setObjectName(QLatin1String(PartNames.at(m_parts.size())));
    box->setChecked(isTicked);
    const QString properties = SchemeValueTexts::PropertiesOf(part);
    box->setAccessibleDescription(properties);
    connect(box, &QCheckBox::toggled, this, &SchemePartsDialog::EnableOK);
    m_parts.push_back(box);
    m_rows->addWidget(box);
    QLabel* remark = MakeRemark(properties, this);
    remark->setIndent(style()->pixelMetric(QStyle::PM_IndicatorWidth) + fontMetrics().averageCharWidth());
    m_rows->addWidget(remark);
}

void SchemePartsDialog::AskForName()
{
    auto* label = new QLabel(tr("&Name:"), this);
    label->setBuddy(m_name);
    m_rows->insertWidget(0, label);
    connect(m_name, &QLineEdit::textChanged, this, &SchemePartsDialog::EnableOK);
    m_asksForName = true;
    m_name->show();
    m_name->setFocus();
    EnableOK();
}

void SchemePartsDialog::AddRemark(const QString& remark)
{
    m_rows->insertWidget(m_rows->indexOf(m_buttons) - 1, MakeRemark(remark, this));
}

QString SchemePartsDialog::Name() const
{
    return m_name->text().trimmed();
}

SchemeParts SchemePartsDialog::Holds() const
{
    SchemeParts holds;
    for (std::size_t part = 0; part < m_parts.size(); ++part)
        holds.setFlag(AllSchemeParts.at(part), m_parts[part]->isChecked());
    return holds;
}

void SchemePartsDialog::EnableOK()
{
    const bool isNamed = !m_asksForName || !Name().isEmpty();
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(isNamed && Holds());
}

} // namespace Orvane
