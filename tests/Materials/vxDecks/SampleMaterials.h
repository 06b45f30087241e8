#pragma once

#include "DecksTesting.h"

#include <memory>

/// Materials with one model each, whose numbers are simple in mm-t-s: E 200000 MPa, nu 0.3, density 7.85e-9 t/mm^3.
namespace vxtest {

std::unique_ptr<MaterialMaker> steel();       ///< also conductivity 54 W/(m K), specific heat 490 J/(kg K)
std::unique_ptr<MaterialMaker> bilinear();    ///< yields at 250 MPa, plastic modulus 1450 MPa
std::unique_ptr<MaterialMaker> multilinear(); ///< 250 MPa, and 300 MPa at 0.05
std::unique_ptr<MaterialMaker> neoHooke();    ///< C10 0.5 MPa, D1 0.002 / MPa, density 1e-9 t/mm^3
std::unique_ptr<MaterialMaker> mooney();      ///< C10 0.3 MPa, C01 0.2 MPa, D1 0.002 / MPa
std::unique_ptr<MaterialMaker> arrudaBoyce(); ///< mu 1 MPa, stretch 5, D1 0.002 / MPa
std::unique_ptr<MaterialMaker> prony();       ///< g 0.5, tau 2 s
std::unique_ptr<MaterialMaker> creeping();    ///< A 1e-10 / (MPa^5 s), N 5, M 0
std::unique_ptr<MaterialMaker> fluid();       ///< 1000 kg/m^3, 1480 m/s, 0.001 Pa s, 0.6 W/(m K), 4200 J/(kg K)

/// Returns the text of the deck in mm-t-s without its first line, which names the units.
std::string bodyOf(vxDecks::Format format, const MaterialMaker& material);

} // namespace vxtest
