// SPDX-License-Identifier: MIT
#include "designer/ControlInDesigner.h"

namespace Orvane {

QString ControlInDesigner::name() const
{
    return QStringLiteral("Orvane::") + m_description.className;
}

// In angle brackets, so that generated code has them too.
QString ControlInDesigner::includeFile() const
{
    return QStringLiteral("<orvane/ovctrls/%1.h>").arg(m_description.className);
}

QString ControlInDesigner::domXml() const
{
    QString objectName = m_description.className;
    objectName[0] = objectName[0].toLower();
    return QStringLiteral("<ui language=\"c++\">"
                          "<widget class=\"%1\" name=\"%2\">%3</widget>"
                          "<customwidgets><customwidget><class>%1</class><extends>%4</extends></"
                          "customwidget></customwidgets>"
                          "</ui>")
        .arg(name(), objectName, m_description.firstProperties, m_description.baseName);
}

} // namespace Orvane
