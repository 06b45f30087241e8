#pragma once

#include "projectfile/ProjectFile.h"

#include <cstdint>
#include <memory>
#include <random>
#include <string>

namespace vxtest {

/// Expects that two materials agree in every field. NaN is equal to NaN here, and 0 is not equal to -0.
void expectSame(const vxMat::MaterialBase& a, const vxMat::MaterialBase& b);

/// Expects that two projects agree in every field, including the fields of their materials.
void expectSame(const projectfile::ProjectRecord& a, const projectfile::ProjectRecord& b);

/// Adds a material with the next number to a project, and its object to the database.
projectfile::ObjectRecord& addMaterial(projectfile::ProjectRecord& project,
                                       std::unique_ptr<vxMat::MaterialBase> material);

/// Adds an object of another class with the next number to a project.
projectfile::ObjectRecord& addOther(projectfile::ProjectRecord& project, const std::string& className,
                                    const std::string& label);

/// Returns a project with each of the 26 library materials.
projectfile::ProjectRecord makeLibraryProject();

/// Returns a small project: two materials with one or two properties each.
projectfile::ProjectRecord makeSmallProject();

/// Returns a small project of another class than a material project, with two materials and two objects of other
/// classes: a probe with properties and content, and a group of the probe and a material.
projectfile::ProjectRecord makeMixedProject();

/// Makes random materials and projects with every kind of value in every field, the same in each run.
class Dice
{
public:
    std::unique_ptr<vxMat::MaterialBase> makeMaterial();
    projectfile::ProjectRecord makeProject(int materials);
    /// Returns a project of a random class, with materials and objects of other classes.
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
