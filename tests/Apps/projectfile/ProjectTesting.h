#pragma once

#include "projectfile/ProjectFile.h"

#include <cstdint>
#include <memory>
#include <random>
#include <string>

namespace vxtest {

/// Expects that two materials agree in every field. NaN is equal to NaN here, and 0 is not equal to -0.
void expectSame(const vxMat::MaterialBase& a, const vxMat::MaterialBase& b);

/// Expects that two projects agree in every field, those of their materials included.
void expectSame(const projectfile::ProjectRecord& a, const projectfile::ProjectRecord& b);

/// Adds a material with the next number to a project, and its object to the database.
projectfile::ObjectRecord& addMaterial(projectfile::ProjectRecord& project,
                                       std::unique_ptr<vxMat::MaterialBase> material);

/// Adds an object of another class with the next number to a project.
projectfile::ObjectRecord& addOther(projectfile::ProjectRecord& project, const std::string& className,
                                    const std::string& label);

/// A project with one material of each of the library's 26.
projectfile::ProjectRecord makeLibraryProject();

/// A project that fits on a page: two materials with a property or two.
projectfile::ProjectRecord makeSmallProject();

/// A project that fits on a page, of another class than a material project, with two materials and two objects of other classes: a probe,
/// which has properties and content, and a group of the probe and a material.
projectfile::ProjectRecord makeMixedProject();

/// Materials, and projects, with all that a field can hold; the same in each run.
class Dice
{
public:
    std::unique_ptr<vxMat::MaterialBase> makeMaterial();
    projectfile::ProjectRecord makeProject(int materials);
    /// A project of any class, with materials and objects of other classes.
    projectfile::ProjectRecord makeMixedProject(int objects);

private:
    Json::Value members();
    Json::Value anything(int depth);
    int upTo(int most);
    std::int32_t whole();
    double number();
    std::string text();
    std::unique_ptr<vxMat::MaterialProperty> makeProperty();

    std::mt19937 m_engine{20240229};
};

} // namespace vxtest
