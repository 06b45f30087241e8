#include "units/UnitDatabase.h"

#include "units/NumberScan.h"
#include "units/ScaleArithmetic.h"
#include "vxMaterial/model/NumberText.h"

#include <clocale>
#include <cmath>
#include <memory>
#include <mutex>
#include <udunits2.h>

namespace vxUnits {

namespace {

/// Sets the C locale in the calling thread, and restores the former one. UDUNITS reads numbers by the locale, and cannot
/// read its own database in a locale with decimal commas.
class PlainLocale
{
public:
    PlainLocale() : m_locale(newlocale(LC_ALL_MASK, "C", nullptr))
    {
        if (m_locale != nullptr) // otherwise memory is short, and the locale of the thread stays
            m_before = uselocale(m_locale);
    }
    PlainLocale(const PlainLocale&) = delete;
    PlainLocale& operator=(const PlainLocale&) = delete;
    ~PlainLocale()
    {
        if (m_locale == nullptr)
            return;
        uselocale(m_before);
        freelocale(m_locale);
    }

private:
    locale_t m_locale;
    locale_t m_before = nullptr;
};

/// Keeps UDUNITS from writing to standard error, until it is destroyed.
class Silence
{
public:
    Silence() : m_before(ut_set_error_message_handler(ut_ignore)) {}
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() { ut_set_error_message_handler(m_before); }

private:
    ut_error_message_handler m_before;
};

struct FreeUnit
{
    void operator()(ut_unit* unit) const { ut_free(unit); }
};
using UnitPointer = std::unique_ptr<ut_unit, FreeUnit>;

struct BaseSymbol
{
    const char* symbol;
    Dimension::Base base;
};
constexpr BaseSymbol baseSymbols[] = {
    {"m", Dimension::Length},
    {"kg", Dimension::Mass},
    {"s", Dimension::Time},
    {"K", Dimension::Temperature},
    {"A", Dimension::Current},
    {"mol", Dimension::Amount},
    {"cd", Dimension::LuminousIntensity},
    {"rad", Dimension::Angle},
};

/// The result of visiting the parts of a unit.
struct Visit
{
    double factor = 1.0;
    Dimension dimension;
    bool multiple = true; ///< whether the unit is a multiple of base units
};

ut_status addBasic(Visit& visit, const ut_unit* unit, int power)
{
    const char* const symbol = ut_get_symbol(unit, UT_ASCII);
    for (const BaseSymbol& one : baseSymbols) {
        if (symbol != nullptr && std::string_view(one.symbol) == symbol) {
            visit.dimension = visit.dimension * Dimension(one.base).power(power);
            return UT_SUCCESS;
        }
    }
    visit.multiple = false;
    return UT_SUCCESS;
}

ut_status visitBasic(const ut_unit* unit, void* argument)
{
    return addBasic(*static_cast<Visit*>(argument), unit, 1);
}

ut_status visitProduct(const ut_unit* /*unit*/, int count, const ut_unit* const* units, const int* powers,
                       void* argument)
{
    for (int i = 0; i < count; ++i)
        addBasic(*static_cast<Visit*>(argument), units[i], powers[i]);
    return UT_SUCCESS;
}

ut_status visitNoMultiple(void* argument)
{
    static_cast<Visit*>(argument)->multiple = false;
    return UT_SUCCESS;
}

ut_status visitTimestamp(const ut_unit* /*unit*/, const ut_unit* /*time*/, double /*origin*/, void* argument)
{
    return visitNoMultiple(argument);
}

ut_status visitLogarithmic(const ut_unit* /*unit*/, double /*base*/, const ut_unit* /*reference*/, void* argument)
{
    return visitNoMultiple(argument);
}

ut_status visitGalilean(const ut_unit* unit, double factor, const ut_unit* underlying, double offset, void* argument);

constexpr ut_visitor visitor{visitBasic, visitProduct, visitGalilean, visitTimestamp, visitLogarithmic};

ut_status visitGalilean(const ut_unit* /*unit*/, double factor, const ut_unit* underlying, double offset,
                        void* argument)
{
    auto& visit = *static_cast<Visit*>(argument);
    visit.factor *= factor;
    visit.multiple = visit.multiple && offset == 0.0 && factor > 0.0;
    return ut_accept_visitor(underlying, &visitor, argument);
}

/// Returns the scale with the decimals of the database, which a double only approximates. Angles are in degrees here.
Scale scaleOf(const Visit& visit)
{
    const std::string text = vxMat::formatNumber(visit.factor);
    const auto decimals = scanNumber(text);
    const DoubleDouble exact = decimals ? decimals->exact() : DoubleDouble{visit.factor, 0.0};
    constexpr double degreesPerRadian = 57.295779513082320877;
    const double angle = std::pow(degreesPerRadian, visit.dimension.exponent(Dimension::Angle));
    return Scale{exact.high, exact.low, 0} * Scale{angle, 0.0, 0};
}

/// The database. Its functions have global state, so that only one call is made at a time.
class Database
{
public:
    static Database& instance()
    {
        static Database database;
        return database;
    }

    std::variant<std::optional<Atom>, DatabaseFault> find(const std::string& name)
    {
        const std::lock_guard lock(m_mutex);
        const PlainLocale locale;
        const Silence silence;
        if (m_state == DatabaseState::NotRead)
            read();
        if (m_state == DatabaseState::Unreadable)
            return DatabaseFault{m_reason};
        return look(name);
    }

    DatabaseState state()
    {
        const std::lock_guard lock(m_mutex);
        return m_state;
    }

private:
    void read()
    {
        m_system = ut_read_xml(nullptr);
        m_state = m_system != nullptr ? DatabaseState::Read : DatabaseState::Unreadable;
        if (m_system != nullptr)
            return;
        const bool missing = ut_get_status() == UT_OPEN_ENV || ut_get_status() == UT_OPEN_DEFAULT;
        ut_status status = UT_SUCCESS;
        const char* const path = ut_get_path_xml(nullptr, &status);
        m_reason =
            std::string(path != nullptr ? path : "udunits2.xml") + (missing ? " cannot be opened" : " is damaged");
    }

    std::optional<Atom> look(const std::string& name) const
    {
        const UnitPointer unit(ut_get_unit_by_name(m_system, name.c_str()));
        Visit visit;
        if (!unit || ut_accept_visitor(unit.get(), &visitor, &visit) != UT_SUCCESS || !visit.multiple)
            return std::nullopt;
        Atom atom;
        atom.symbol = name;
        atom.scale = scaleOf(visit);
        atom.dimension = visit.dimension;
        atom.note = makeMessage(Text::NoteDatabase, {name});
        return atom;
    }

    std::mutex m_mutex;
    DatabaseState m_state = DatabaseState::NotRead;
    ut_system* m_system = nullptr; ///< stays until the program ends
    std::string m_reason;
};

} // namespace

std::variant<std::optional<Atom>, DatabaseFault> findInDatabase(const std::string& name)
{
    return Database::instance().find(name);
}

DatabaseState databaseState()
{
    return Database::instance().state();
}

} // namespace vxUnits
