#ifndef CALC_COMMON_SRC_RESULTS_RESULT_SLOTS_HPP
#define CALC_COMMON_SRC_RESULTS_RESULT_SLOTS_HPP

// The slots of the two result containers. A point (directional noise) and the global result
// (integrated indicators) have the same slots under the same names, so the rules that select,
// fill, clear and list them are written once here for both.

#include <calc-common/results.hpp>

#include <boost/make_shared.hpp>

namespace VARNO {
namespace detail {

/// The shared pointer type of one slot of a container.
template <class Container>
using slot_t = decltype(Container::total_engine);

/// The slot that holds `type`, or null when the container has none for it: per-engine totals
/// have no slot, and neither has a component or a total by source type not yet created.
template <class Container>
slot_t<Container>* find_slot(Container& container, result_type_t const& type) {
    if (type.engine_source) {
        auto const& entry = container.engine_sources[type.source_index];
        if (!entry) {
            return nullptr;
        }
        if (type.whole_source) {
            return &entry->whole;
        }
        auto const found = entry->components.find(type.component);
        return found == entry->components.end() ? nullptr : &found->second;
    }
    if (type.airframe_source) {
        return &container.airframe_sources[type.source_index];
    }
    if (type.total) {
        switch (type.total_type) {
        case total_engine:
            return &container.total_engine;
        case total_airfoil:
            return &container.total_airfoil;
        case total_landing_gear:
            return &container.total_landing_gear;
        case total_airframe:
            return &container.total_airframe;
        case total_aircraft:
            return &container.total_aircraft;
        case total_by_source_type: {
            auto const found = container.totals_by_source_type.find(type.source_type);
            return found == container.totals_by_source_type.end() ? nullptr : &found->second;
        }
        default:
            return nullptr;
        }
    }
    if (type.genepass) {
        switch (type.genepass_type) {
        case genepass_total_aircraft_broadband:
            return &container.genepass_broadband;
        case genepass_total_aircraft_tones:
            return &container.genepass_tones;
        case genepass_ground_reflection:
            return &container.genepass_ground_reflection;
        default:
            return nullptr;
        }
    }
    return nullptr;
}

/// Stores a new record in the slot of `type`, replacing what was there. Totals by source type
/// and engine sources make their slot on demand; any other type without a slot drops the
/// record and gives an empty pointer.
template <class Container>
slot_t<Container> store_record(Container& container, result_type_t const& type,
                               slot_t<Container> record) {
    if (!type.engine_source && type.total_type == total_by_source_type) {
        container.totals_by_source_type[type.source_type] = record;
        return record;
    }
    if (type.engine_source) {
        auto& entry = container.engine_sources[type.source_index];
        if (!entry) {
            entry = boost::make_shared<typename std::decay_t<decltype(entry)>::element_type>();
        }
        (type.whole_source ? entry->whole : entry->components[type.component]) = record;
        return record;
    }
    slot_t<Container>* slot = find_slot(container, type);
    if (slot == nullptr) {
        return slot_t<Container>();
    }
    *slot = record;
    return record;
}

template <class Record>
void clear_if_held(boost::shared_ptr<Record> const& record) {
    if (record) {
        record->clear_values();
    }
}

/// Clears every record of a container for a new direction; no slot is released.
template <class Container>
void clear_slots(Container& container) {
    for (auto const& entry : container.engine_sources) {
        if (entry) {
            clear_if_held(entry->whole);
            for (auto const& component : entry->components) {
                clear_if_held(component.second);
            }
        }
    }
    for (auto const& record : container.airframe_sources) {
        clear_if_held(record);
    }
    for (auto const& total : container.totals_by_source_type) {
        clear_if_held(total.second);
    }
    for (auto const* slot :
         {&container.total_engine, &container.total_airfoil, &container.total_landing_gear,
          &container.total_airframe, &container.total_aircraft, &container.genepass_broadband,
          &container.genepass_tones, &container.genepass_ground_reflection}) {
        clear_if_held(*slot);
    }
}

/// Appends the records of each engine source that has an entry: its whole, then its
/// components in component order.
template <class Container>
void append_engine_sources(Container const& container, std::vector<slot_t<Container>>& all) {
    for (auto const& entry : container.engine_sources) {
        if (!entry) {
            continue;
        }
        if (entry->whole) {
            all.push_back(entry->whole);
        }
        for (auto const& component : entry->components) {
            all.push_back(component.second);
        }
    }
}

/// Appends the fixed slots that close every listing, empty ones included.
template <class Container>
void append_closing_slots(Container const& container, std::vector<slot_t<Container>>& all) {
    all.insert(all.end(),
               {container.total_airfoil, container.total_landing_gear, container.total_airframe,
                container.total_aircraft, container.genepass_broadband, container.genepass_tones,
                container.genepass_ground_reflection});
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_RESULTS_RESULT_SLOTS_HPP
