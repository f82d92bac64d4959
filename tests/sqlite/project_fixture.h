// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "ado/recordset.h"
#include "automation/convert.h"
#include "raw_file.h"
#include "support/error_of.h"
#include "support/temporary_folder.h"

namespace hx::sqlite {

using automation::Variant;
using Values = std::vector<std::pair<std::string, Variant>>;

/// Tests on one new project file.
class ProjectTest : public testing::Test {
  protected:
    ProjectTest() { createProject(path_); }

    std::shared_ptr<ado::Connection> connect(const std::string& mode = "Read|Write|Share Deny None") {
        auto connection = std::make_shared<ado::Connection>(provider_);
        connection->open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path_ + ";Mode=" + mode + ";");
        return connection;
    }
    static std::shared_ptr<ado::Recordset> open(const std::shared_ptr<ado::Connection>& connection,
                                                const std::string& source) {
        auto recordset = std::make_shared<ado::Recordset>();
        recordset->open(source, connection);
        return recordset;
    }
    static std::string column(ado::Recordset& recordset, const std::string& name) {
        std::string text;
        if (recordset.recordCount() > 0) recordset.moveFirst();
        for (bool first = true; !recordset.eof(); recordset.moveNext()) {
            if (!first) text += ",";
            first = false;
            text += automation::toText(recordset.field(name).value());
        }
        return text;
    }

    support::TemporaryFolder folder_;
    std::string path_ = folder_.file("plant.hxs");
    Provider provider_;
};

using support::errorOf;

}  // namespace hx::sqlite
