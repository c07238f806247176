// SPDX-License-Identifier: MIT
#include "component/model/ModelTransaction.h"

namespace Orvane {

ModelTransaction::ModelTransaction(ILayerDatabase& database) : m_database(database)
{
    m_database.BeginTrans();
}

ModelTransaction::~ModelTransaction()
{
    if (!m_open)
        return;
    try {
        m_database.Rollback();
    } catch (...) { // the error that led here is the one to report
    }
}

void ModelTransaction::Commit()
{
    m_database.CommitTrans();
    m_open = false;
}

} // namespace Orvane
