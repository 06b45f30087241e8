#include "FailingAllocation.h"
#include "ProjectTesting.h"

#include <memory>

namespace {

using ExhaustedMemoryOfAProject = vxtest::MaterialProject;

TEST_F(ExhaustedMemoryOfAProject, LeavesAMaterialWithoutAResultOfItsExecution)
{
    Mat::MaterialObject& object = addMaterial("Steel");
    // The result is one allocation; its text is another allocation.
    for (const int which : {1, 2}) {
        SCOPED_TRACE(which);
        const Obj::ProjectObjectExecReturn* result = nullptr;
        const vxtest::FailingAllocation failing(which);
        EXPECT_NO_THROW(result = object.execute());
        EXPECT_TRUE(failing.hasFailed()) << "the allocation was not asked for";
        EXPECT_EQ(result, nullptr);
    }
    EXPECT_NE(std::unique_ptr<Obj::ProjectObjectExecReturn>(object.execute()), nullptr);
}

} // namespace
