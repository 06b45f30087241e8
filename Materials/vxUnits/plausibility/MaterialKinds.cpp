#include "plausibility/MaterialKinds.h"

#include "units/Words.h"
#include "vxUnits/Quantity.h"

#include <algorithm>
#include <string>

namespace vxUnits {

namespace {

constexpr Span none{};

/// A solid: density, Young's modulus, Poisson's ratio, yield stress or strength, specific heat, thermal conductivity,
/// electrical conductivity, all in SI. The wave speed narrows kinds whose modulus rises with their density.
constexpr MaterialKind solid(const char* name, Span density, Span modulus, Span ratio, Span strength, Span heat,
                             Span conductivity, Span electrical, Span waveSpeed = none)
{
    return {name, {density, modulus, ratio, strength, heat, conductivity, electrical, none, none, waveSpeed}, 1.0};
}

/// One of the kinds that most models are made of.
constexpr MaterialKind common(MaterialKind kind)
{
    kind.rareness = 0.0;
    return kind;
}

/// One of the kinds that hyperelastic models are made for.
constexpr MaterialKind elastic(MaterialKind kind)
{
    kind.elastomer = true;
    return kind;
}

/// A fluid: density, speed of sound, specific heat, thermal conductivity, dynamic viscosity, electrical conductivity.
constexpr MaterialKind fluid(const char* name, Span density, Span sound, Span heat, Span conductivity, Span viscosity,
                             Span electrical)
{
    return {name, {density, none, none, none, heat, conductivity, electrical, sound, viscosity, none}, 1.0};
}

/// Sources: Ashby, Materials Selection in Mechanical Design, 4th ed., 2011, appendix A, and the Cambridge Materials Data
/// Book, 2003; CRC Handbook of Chemistry and Physics, 97th ed.; Kaye and Laby, Tables of Physical and Chemical
/// Constants, 16th ed.; Smithells Metals Reference Book, 8th ed.; MMPDS-12; Gibson and Ashby, Cellular Solids, 2nd ed.;
/// Wood Handbook, Forest Products Laboratory, 2010; EN 1992-1-1 and ISO 10456 (building materials); Fung, Biomechanics,
/// 2nd ed.; NIST Chemistry WebBook (fluids); OECD NEA Handbook on Lead-bismuth Eutectic, 2015 (liquid metals).
constexpr MaterialKind table[] = {
    // Metals
    common(
        solid("steel", {7650, 7950}, {188e9, 220e9}, {.26, .32}, {150e6, 2.4e9}, {420, 530}, {24, 75}, {2e6, 1.05e7})),
    common(solid("stainless steel", {7500, 8150}, {183e9, 216e9}, {.25, .33}, {160e6, 2.1e9}, {430, 530}, {10, 32},
                 {9e5, 2e6})),
    common(solid("cast iron", {6800, 7450}, {65e9, 182e9}, {.2, .31}, {60e6, 1.2e9}, {420, 560}, {18, 80}, {6e5, 3e6})),
    common(solid("aluminium alloy", {2500, 2900}, {65e9, 83e9}, {.31, .36}, {10e6, 700e6}, {830, 980}, {80, 245},
                 {1.2e7, 3.9e7})),
    solid("magnesium alloy", {1340, 1950}, {40e9, 49e9}, {.27, .37}, {40e6, 420e6}, {930, 1110}, {40, 165},
          {4e6, 2.5e7}),
    common(solid("titanium alloy", {4300, 5150}, {55e9, 128e9}, {.29, .39}, {120e6, 1.6e9}, {450, 730}, {4.5, 24},
                 {4.5e5, 2.7e6})),
    common(solid("copper alloy", {7300, 8990}, {90e9, 160e9}, {.29, .37}, {25e6, 1.5e9}, {360, 450}, {18, 410},
                 {1.7e6, 6.1e7})),
    solid("nickel alloy", {7600, 9350}, {140e9, 250e9}, {.26, .35}, {60e6, 2e9}, {370, 550}, {7, 98}, {5e5, 1.6e7}),
    solid("cobalt alloy", {8100, 9350}, {190e9, 255e9}, {.27, .34}, {220e6, 2.2e9}, {370, 460}, {8, 105}, {8e5, 1.8e7}),
    solid("zinc alloy", {4900, 7250}, {60e9, 115e9}, {.23, .35}, {30e6, 480e6}, {360, 540}, {80, 140}, {8e6, 1.9e7}),
    solid("lead, tin or solder", {7200, 11450}, {12e9, 62e9}, {.32, .46}, {3e6, 100e6}, {120, 240}, {18, 80},
          {2e6, 1.1e7}),
    solid("refractory metal", {8200, 21200}, {95e9, 480e9}, {.26, .41}, {80e6, 1.9e9}, {125, 290}, {40, 185},
          {3e6, 2.1e7}),
    solid("zirconium or hafnium", {6400, 13400}, {80e9, 150e9}, {.31, .39}, {120e6, 700e6}, {138, 310}, {11, 27},
          {1e6, 3.5e6}),
    solid("chromium, manganese or vanadium", {6000, 7500}, {110e9, 300e9}, {.19, .38}, {80e6, 700e6}, {420, 510},
          {7, 98}, {6e5, 8.5e6}),
    solid("precious metal", {10300, 22650}, {65e9, 540e9}, {.24, .45}, {15e6, 1.1e9}, {122, 260}, {45, 430},
          {4e6, 6.4e7}),
    solid("beryllium", {1800, 2150}, {230e9, 315e9}, {.02, .2}, {150e6, 600e6}, {1450, 2000}, {140, 225},
          {1.5e7, 3.2e7}),
    solid("uranium or thorium", {11000, 19300}, {65e9, 215e9}, {.19, .32}, {100e6, 1.1e9}, {108, 150}, {20, 58},
          {2e6, 7.5e6}),
    solid("alkali or alkaline earth metal", {530, 3700}, {1.5e9, 33e9}, {.27, .42}, {.3e6, 120e6}, {185, 3700},
          {30, 210}, {2e6, 3e7}),
    solid("bismuth or antimony", {6600, 9850}, {30e9, 80e9}, {.24, .35}, {5e6, 80e6}, {118, 215}, {7, 26},
          {7e5, 2.7e6}),
    solid("metallic glass", {4400, 7800}, {65e9, 160e9}, {.3, .41}, {700e6, 4.2e9}, {320, 520}, {3, 22}, {3.5e5, 1e6}),
    solid("shape memory alloy", {6400, 6600}, {20e9, 90e9}, {.3, .42}, {60e6, 800e6}, {320, 850}, {8, 20},
          {9e5, 1.4e6}),
    solid("hard metal", {10500, 16000}, {380e9, 730e9}, {.17, .31}, {300e6, 7e9}, {170, 330}, {25, 125}, {9e5, 7e6}),
    solid("metal matrix composite", {1800, 4700}, {60e9, 260e9}, {.22, .36}, {60e6, 1.3e9}, {550, 1000}, {5, 230},
          {4e5, 3e7}, {4000, 10500}),
    solid("metal foam", {120, 1600}, {30e6, 28e9}, {.15, .38}, {.1e6, 80e6}, {420, 1000}, {.4, 30}, {5e4, 1.1e7},
          {250, 4900}),

    // Ceramics, glass and stone
    solid("oxide ceramic", {2600, 4050}, {130e9, 420e9}, {.15, .31}, {40e6, 6e9}, {620, 1150}, {2.2, 65},
          {1e-16, 1e-5}),
    solid("zirconia", {5300, 6250}, {150e9, 225e9}, {.21, .34}, {150e6, 3e9}, {390, 570}, {1.4, 3.6}, {1e-14, 1e-6}),
    solid("silicon carbide", {2500, 3250}, {150e9, 480e9}, {.12, .23}, {100e6, 8e9}, {600, 900}, {30, 300},
          {1e-8, 1e5}),
    solid("silicon nitride", {2100, 3400}, {120e9, 340e9}, {.2, .31}, {100e6, 6e9}, {600, 850}, {7, 95}, {1e-14, 1e-8}),
    solid("aluminium nitride or beryllia", {2800, 3360}, {290e9, 410e9}, {.2, .29}, {150e6, 3e9}, {700, 1100},
          {60, 330}, {1e-14, 1e-9}),
    solid("boron nitride, pressed", {1800, 2300}, {15e9, 100e9}, {.04, .3}, {10e6, 400e6}, {750, 1650}, {12, 140},
          {1e-14, 1e-9}),
    solid("boron carbide", {2250, 2600}, {340e9, 490e9}, {.13, .23}, {150e6, 6e9}, {800, 1100}, {15, 95}, {1e-1, 1e5}),
    solid("titanium boride, carbide or nitride", {4300, 5650}, {330e9, 590e9}, {.09, .26}, {100e6, 6e9}, {430, 720},
          {14, 125}, {1e5, 2e7}),
    solid("boride or carbide of a heavy metal", {5900, 15900}, {330e9, 730e9}, {.13, .31}, {100e6, 6e9}, {170, 500},
          {14, 110}, {4e5, 1.3e7}),
    solid("silicon", {2300, 2360}, {120e9, 195e9}, {.19, .3}, {50e6, 8e9}, {670, 740}, {70, 165}, {1e-5, 2e5}),
    solid("germanium or gallium arsenide", {5250, 5450}, {75e9, 160e9}, {.19, .34}, {40e6, 4e9}, {300, 360}, {35, 68},
          {1e-7, 2e5}),
    solid("diamond", {3300, 3570}, {700e9, 1300e9}, {.04, .24}, {400e6, 6e10}, {450, 660}, {400, 3400}, {1e-19, 1e4}),
    common(solid("glass", {2100, 5200}, {44e9, 100e9}, {.14, .31}, {20e6, 3e9}, {480, 950}, {.6, 1.6}, {1e-19, 1e-7})),
    solid("glass ceramic", {2350, 2900}, {55e9, 140e9}, {.2, .32}, {30e6, 2e9}, {650, 1000}, {1, 5}, {1e-17, 1e-7}),
    solid("porcelain or clay ceramic", {1900, 2800}, {15e9, 160e9}, {.13, .32}, {10e6, 1.5e9}, {650, 1150}, {.7, 6},
          {1e-16, 1e-6}),
    solid("piezoceramic or titanate", {4400, 8000}, {40e9, 190e9}, {.24, .4}, {20e6, 1.5e9}, {280, 620}, {.8, 9},
          {1e-14, 1e-5}),
    solid("ferrite", {4400, 5400}, {100e9, 200e9}, {.22, .32}, {20e6, 1e9}, {550, 900}, {2, 7.5}, {1e-8, 1e3}),
    solid("permanent magnet", {4700, 8700}, {90e9, 210e9}, {.22, .33}, {30e6, 1.2e9}, {320, 800}, {3.5, 16},
          {3e5, 2.5e6}),
    solid("nuclear oxide", {9800, 11200}, {150e9, 235e9}, {.28, .34}, {50e6, 1.5e9}, {210, 340}, {2, 11}, {1e-7, 1e2}),
    solid("carbon or graphite", {1400, 2270}, {3.5e9, 36e9}, {.06, .36}, {8e6, 600e6}, {620, 1100}, {2, 500},
          {5e3, 2.5e6}),
    common(solid("concrete", {1900, 2700}, {9e9, 65e9}, {.08, .29}, {1e6, 220e6}, {720, 1200}, {.7, 3.6}, {1e-9, 1e-1},
                 {1900, 5300})),
    solid("light concrete", {280, 2050}, {.4e9, 24e9}, {.08, .3}, {.4e6, 70e6}, {780, 1250}, {.06, 1.3}, {1e-9, 1e-1},
          {800, 4300}),
    solid("mortar, plaster or brick", {600, 2450}, {.8e9, 52e9}, {.06, .32}, {.2e6, 150e6}, {720, 1250}, {.13, 1.9},
          {1e-10, 1e-1}, {900, 5000}),
    solid("rock", {1700, 3450}, {1e9, 180e9}, {.05, .4}, {.5e6, 500e6}, {620, 1200}, {.6, 9}, {1e-12, 1e0},
          {500, 7700}),
    common(solid("soil", {900, 2400}, {.5e6, 1.5e9}, {.05, .498}, {.5e3, 2e6}, {650, 2700}, {.12, 4.5}, {1e-6, 1e1},
                 {8, 1000})),
    solid("ice", {860, 935}, {3e9, 12e9}, {.27, .4}, {.3e6, 30e6}, {1850, 2200}, {1.8, 3.2}, {1e-10, 1e-4}),
    solid("snow", {40, 700}, {5e4, 3e9}, {.02, .4}, {1e3, 5e6}, {1850, 2200}, {.02, 1.2}, none, {25, 2400}),
    solid("asphalt", {1900, 2650}, {.05e9, 25e9}, {.2, .5}, {.1e6, 30e6}, {780, 1300}, {.4, 2.9}, {1e-14, 1e-4}),

    // Living and grown
    common(solid("wood, along the grain", {70, 1400}, {1e9, 30e9}, {.1, .6}, {2e6, 180e6}, {1050, 3000}, {.035, .8},
                 {1e-17, 1e-2}, {2200, 6600})),
    solid("wood, across the grain, or board", {70, 1450}, {.03e9, 6e9}, {.01, .7}, {.3e6, 60e6}, {1050, 3000},
          {.03, .5}, {1e-17, 1e-2}, {350, 4400}),
    solid("bamboo", {450, 1100}, {5e9, 28e9}, {.15, .5}, {10e6, 350e6}, {1100, 2800}, {.08, .5}, {1e-14, 1e-2}),
    elastic(solid("cork", {80, 320}, {3e6, 80e6}, {-.05, .35}, {.1e6, 4e6}, {1600, 2300}, {.03, .08}, {1e-14, 1e-6},
                  {90, 700})),
    solid("paper, leather or textile", {180, 1350}, {.03e9, 15e9}, {.05, .55}, {1e6, 200e6}, {1100, 2000}, {.03, .3},
          {1e-15, 1e-3}, {150, 4000}),
    solid("bone or tooth", {180, 3050}, {.03e9, 105e9}, {.15, .42}, {.5e6, 450e6}, {700, 2600}, {.2, 1.1}, {1e-4, 1e0},
          {150, 6000}),
    elastic(solid("soft tissue or gel", {900, 1250}, {5, 8e6}, {.35, .499999}, {1, 20e6}, {2200, 4400}, {.2, .68},
                  {1e-6, 5e0}, {.05, 100})),
    elastic(solid("tendon, skin or cartilage", {950, 1400}, {.05e6, 2.5e9}, {.05, .499999}, {.01e6, 200e6},
                  {2000, 4000}, {.2, .7}, {1e-4, 5e0}, {5, 1400})),

    // Plastics and composites
    common(solid("plastic", {980, 1550}, {.9e9, 6e9}, {.3, .46}, {12e6, 160e6}, {900, 2000}, {.1, .5}, {1e-20, 1e-6},
                 {780, 2300})),
    elastic(common(solid("polyolefin", {820, 1000}, {.05e9, 2.3e9}, {.36, .49}, {3e6, 55e6}, {1600, 2700}, {.1, .6},
                         {1e-20, 1e-8}, {230, 1650}))),
    elastic(solid("fluoropolymer", {1650, 2300}, {.25e9, 3e9}, {.34, .49}, {5e6, 80e6}, {850, 1450}, {.1, .4},
                  {1e-25, 1e-8})),
    common(solid("reinforced or filled plastic", {1000, 2600}, {1.5e9, 40e9}, {.22, .45}, {15e6, 450e6}, {750, 1800},
                 {.15, 25}, {1e-18, 1e3}, {1000, 5500})),
    elastic(solid("soft plastic", {850, 1450}, {3e6, 1.2e9}, {.37, .4995}, {1.5e6, 80e6}, {1100, 2500}, {.1, .4},
                  {1e-19, 1e-4}, {40, 1000})),
    elastic(common(solid("rubber", {820, 2150}, {.15e6, 150e6}, {.43, .49999}, {.3e6, 60e6}, {900, 2600}, {.08, 1.8},
                         {1e-18, 1e3}, {8, 450}))),
    solid("ebonite", {1080, 1500}, {.4e9, 4e9}, {.33, .46}, {15e6, 90e6}, {1100, 1700}, {.13, .3}, {1e-18, 1e-9}),
    solid("carbon fibre composite", {1300, 1900}, {4e9, 420e9}, {.02, .6}, {20e6, 4e9}, {650, 1300}, {.3, 120},
          {1e0, 2e5}, {1600, 16000}),
    solid("glass or aramid fibre composite", {1150, 2400}, {3.5e9, 100e9}, {.05, .5}, {15e6, 2.8e9}, {700, 1500},
          {.15, 1.6}, {1e-18, 1e-8}, {1500, 8500}),
    solid("boron fibre composite", {1900, 2200}, {15e9, 240e9}, {.1, .35}, {30e6, 2.5e9}, {700, 1200}, {.3, 5}, none),
    solid("carbon fibre", {1650, 2280}, {28e9, 970e9}, {.1, .36}, {500e6, 8e9}, {600, 1050}, {2, 1100}, {8e3, 2e6}),
    solid("glass, basalt or ceramic fibre", {2100, 4000}, {45e9, 450e9}, {.15, .32}, {800e6, 5e9}, {650, 1150},
          {.7, 50}, {1e-16, 1e3}),
    solid("polymer or natural fibre", {880, 1620}, {1.5e9, 300e9}, {.2, .5}, {100e6, 6e9}, {1000, 2100}, {.04, 35},
          {1e-18, 1e-3}),

    // Foams and insulation
    elastic(
        solid("soft foam", {8, 350}, {1e3, 30e6}, {-.7, .42}, {.2e3, 2e6}, {900, 2500}, {.015, .1}, none, {3, 420})),
    solid("rigid foam", {10, 900}, {.3e6, 1.5e9}, {.02, .45}, {.02e6, 45e6}, {700, 2300}, {.015, .35}, none,
          {100, 3000}),
    solid("insulating wool or granulate", {5, 400}, {.5e3, 50e6}, {0, .4}, {.1e3, 2e6}, {600, 2200}, {.018, .15}, none,
          {3, 480}),
    solid("aerogel", {.1, 550}, {.5e3, 1.2e9}, {0, .35}, {.1e3, 20e6}, {550, 2100}, {.008, .08}, none, {5, 1500}),
    solid("honeycomb", {12, 250}, {3e6, 4e9}, {0, .5}, {.1e6, 30e6}, {750, 1700}, {.03, 12}, none, {350, 5200}),

    // Liquids
    common(fluid("water or aqueous solution", {930, 1350}, {1350, 2000}, {2300, 4350}, {.38, .72}, {2e-4, 3e-2},
                 {1e-7, 1.5e2})),
    fluid("alcohol, hydrocarbon or solvent", {580, 1280}, {850, 1700}, {1300, 3100}, {.08, .28}, {1.5e-4, 6e-2},
          {1e-17, 1e-2}),
    fluid("halogenated liquid", {1100, 3400}, {420, 1250}, {350, 1500}, {.04, .15}, {1.5e-4, 3e-2}, {1e-16, 1e-6}),
    common(fluid("oil", {750, 1050}, {900, 1700}, {1300, 2700}, {.09, .22}, {2e-3, 8}, {1e-16, 1e-7})),
    fluid("syrup, glycol or glycerol", {1000, 1550}, {1400, 2300}, {1500, 3700}, {.18, .5}, {8e-3, 100}, {1e-9, 1e0}),
    fluid("blood, milk or suspension", {980, 1300}, {1350, 1800}, {2800, 4200}, {.38, .68}, {8e-4, 5e-2}, {1e-2, 1e1}),
    fluid("mercury", {13300, 13700}, {1350, 1500}, {132, 145}, {6, 13}, {1e-3, 2e-3}, {8e5, 1.2e6}),
    fluid("liquid lithium", {460, 540}, {4200, 4800}, {4000, 4500}, {38, 75}, {2.5e-4, 7e-4}, {2e6, 4.5e6}),
    fluid("liquid sodium or potassium", {670, 970}, {1600, 2650}, {730, 1500}, {18, 95}, {1e-4, 8e-4}, {8e5, 1.1e7}),
    fluid("liquid lead, tin, bismuth or gallium", {5800, 11000}, {1500, 3000}, {130, 420}, {8, 42}, {8e-4, 5e-3},
          {5e5, 4.5e6}),
    fluid("molten metal", {1500, 9200}, {2500, 4900}, {380, 1350}, {18, 220}, {4e-4, 9e-3}, {4e5, 6e6}),
    fluid("molten salt", {1600, 3500}, {1200, 3500}, {700, 2500}, {.3, 1.4}, {6e-4, 3e-2}, {2e1, 1e3}),
    fluid("cryogenic liquid", {60, 1500}, {165, 1500}, {850, 10500}, {.015, .26}, {2e-6, 5e-4}, none),
    fluid("liquefied gas or refrigerant", {420, 1500}, {300, 1500}, {900, 5000}, {.06, .6}, {6e-5, 5e-4}, none),
    fluid("melt or bitumen", {700, 2700}, {700, 3500}, {800, 2800}, {.09, 6}, {.5, 1e9}, {1e-16, 1e2}),

    // Gases at atmospheric pressure
    fluid("hydrogen or helium", {.065, .22}, {850, 1400}, {5000, 15000}, {.13, .2}, {8e-6, 2.2e-5}, none),
    fluid("light gas", {.35, 1.0}, {380, 520}, {1000, 2400}, {.019, .06}, {8e-6, 3.4e-5}, none),
    common(fluid("air or a similar gas", {1.0, 1.55}, {300, 365}, {700, 1700}, {.015, .03}, {8e-6, 2.4e-5},
                 {1e-16, 1e-9})),
    fluid("heavy gas", {1.4, 14}, {75, 340}, {90, 1900}, {.0045, .021}, {6e-6, 2.7e-5}, none),
    fluid("hot gas", {.1, 1.1}, {330, 1000}, {900, 2600}, {.02, .16}, {1.2e-5, 8e-5}, none),
    fluid("compressed gas", {1.5, 350}, {130, 650}, {450, 4000}, {.009, .1}, {8e-6, 6e-5}, none),
    fluid("compressed hydrogen or helium", {.2, 45}, {850, 1600}, {5000, 16000}, {.13, .3}, {8e-6, 3e-5}, none),
};

} // namespace

const std::vector<MaterialKind>& materialKinds()
{
    static const std::vector<MaterialKind> kinds(std::begin(table), std::end(table));
    return kinds;
}

void addMaterialWords(std::vector<std::string>& words)
{
    for (const MaterialKind& kind : materialKinds())
        words.emplace_back(kind.name);
    for (const Quantity& quantity : quantities()) {
        words.emplace_back(quantity.meaning);
        for (const auto* const range : {&quantity.solids, &quantity.liquids, &quantity.gases}) {
            if (*range)
                words.insert(words.end(), {(*range)->lowestIs, (*range)->highestIs});
        }
    }
    std::sort(words.begin(), words.end());
    words.erase(std::unique(words.begin(), words.end()), words.end());
}

} // namespace vxUnits
