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

/// The error that the action throws; number 0 for none.
template <class Action>
automation::Error errorOf(Action&& action) {
    try {
        action();
    } catch (const automation::Error& error) {
        return error;
    }
    return {0, "no error"};
}

}  // namespace hx::sqlite
