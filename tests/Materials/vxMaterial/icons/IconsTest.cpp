#include "Icons.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

namespace {

QStringList icons()
{
    return QDir(QStringLiteral(":/icons")).entryList(QDir::Files, QDir::Name);
}

TEST(Icons, AreThereFromTheirRegistrationUntilTheyAreTakenBack)
{
    EXPECT_EQ(icons(), QStringList());
    MatGui::registerIcons();
    MatGui::registerIcons();
    EXPECT_EQ(icons(), QStringList({"norvex_exportmaterial.svg", "norvex_importmaterial.svg",
                                    "norvex_materialobject.svg", "norvex_materialproject.svg"}));
    EXPECT_TRUE(QFile::exists(QStringLiteral(":icons/norvex_materialobject.svg")));
    MatGui::unregisterIcons();
    EXPECT_EQ(icons(), QStringList());
}

} // namespace
