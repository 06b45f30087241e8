#include "Obj/ObjectHomes.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include "Obj/ProjectObjectGroup.h"

namespace homes {

class Shelf : public Obj::Project
{
    OBJ_CLASS;
};

class BookShelf : public Shelf
{
    OBJ_CLASS;
};

class Book : public Obj::ProjectObject
{
    OBJ_CLASS;
};

class Atlas : public Book
{
    OBJ_CLASS;
};

OBJ_REGISTER_CLASS(homes::Shelf, Obj::Project)
OBJ_REGISTER_CLASS(homes::BookShelf, homes::Shelf)
OBJ_REGISTER_CLASS(homes::Book, Obj::ProjectObject)
OBJ_REGISTER_CLASS(homes::Atlas, homes::Book)

} // namespace homes

namespace {

using testing::HasSubstr;

class ObjectHomesTest : public vxtest::ObjTest
{
protected:
    ObjectHomesTest()
    {
        homes::Shelf::init();
        homes::BookShelf::init();
        homes::Book::init();
        homes::Atlas::init();
        Obj::registerHome("homes::Book", "homes::Shelf");
        Obj::registerHome("homes::Book", "homes::Shelf");
        Obj::registerHome("homes::Atlas", "homes::BookShelf");
    }
};

TEST_F(ObjectHomesTest, TakeObjectsOfTheirClass)
{
    Obj::Project* const shelf = application().createProject("homes::Shelf", "shelf");
    EXPECT_TRUE(shelf->canTake(homes::Book::getClassTypeId()));
    EXPECT_NE(shelf->add_object("homes::Book", "a book"), nullptr);
    EXPECT_NE(shelf->add_object("homes::Book", "another", 9), nullptr);
}

TEST_F(ObjectHomesTest, AreInheritedByProjectsAndObjects)
{
    Obj::Project* const bookShelf = application().createProject("homes::BookShelf", "shelf");
    EXPECT_NE(bookShelf->add_object("homes::Book", "a book"), nullptr) << "a book shelf is a shelf";
    EXPECT_NE(bookShelf->add_object("homes::Atlas", "an atlas"), nullptr);
    const vxtest::Reports reports;
    Obj::Project* const shelf = application().createProject("homes::Shelf", "shelf");
    EXPECT_EQ(shelf->add_object("homes::Atlas", "an atlas"), nullptr) << "its own home counts, not that of books";
}

TEST_F(ObjectHomesTest, KeepOtherProjectsFreeOfTheirObjects)
{
    vxtest::Assembly& assembly = addAssembly("machine %1");
    const vxtest::Reports reports;
    EXPECT_FALSE(assembly.canTake(homes::Book::getClassTypeId()));
    EXPECT_EQ(assembly.add_object("homes::Book", "a book"), nullptr);
    EXPECT_EQ(assembly.add_object("homes::Book", "a book", 3), nullptr);
    EXPECT_EQ(assembly.add_object(std::make_unique<homes::Atlas>(), "an atlas"), nullptr);
    EXPECT_EQ(assembly.getObjectCount(), 0U);
    EXPECT_EQ(assembly.getNextObjectId(), 1U);
    EXPECT_EQ(reports.errors(), 3);
    EXPECT_THAT(reports.text(), HasSubstr("\"homes::Book\" was added to the project \"machine %1\": projects of class "
                                          "\"vxtest::Assembly\" do not take such objects"));
}

TEST_F(ObjectHomesTest, AreNotNeeded)
{
    Obj::Project* const shelf = application().createProject("homes::Shelf", "shelf");
    EXPECT_NE(shelf->add_object("vxtest::Part", "a part"), nullptr);
    EXPECT_NE(shelf->add_object("Obj::ProjectObjectGroup", "a group"), nullptr);
}

} // namespace
