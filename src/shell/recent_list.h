#pragma once

#include <string_view>

#include "engine/text.h"

namespace tarnmill {

class MenuItem;
class Workbench;

/// Five recent entries, the newest first. The captions of a window's menu array are the list, and an empty
/// caption ends it; the settings keep a copy under "prefix1" to "prefix5".
class RecentList {
 public:
  /// `window` and `menu` name the array of five menu items; `separator` is empty for a list without one.
  struct Place {
    TextView section;
    TextView prefix;
    std::string_view window;
    std::string_view menu;
    std::string_view separator;
  };

  /// Makes the window when it doesn't exist yet.
  RecentList(Workbench& bench, const Place& place);

  /// Takes the stored entries into the captions. An empty one leaves its caption alone.
  void load();

  /// Shows the separator and the items in front of the first empty caption.
  void show();

  /// Puts an entry in front, whether it is in the list or not; the fifth falls off.
  void add(TextView entry);

  /// Puts an entry in front, moving it there from its old place. One that is in front already changes
  /// nothing.
  void add_once(TextView entry);

 private:
  static constexpr int slots = 5;

  [[nodiscard]] MenuItem& item(int slot) const;
  [[nodiscard]] Text value_name(int slot) const;
  [[nodiscard]] int slot_of(TextView entry) const;
  void put(int slot, const Text& entry);
  void make_room(int last);
  void show_separator();

  Workbench& bench_;
  const Place& place_;
};

namespace detail {

/// The procedures of one list as values, so that each carries the name it is known by.
struct LoadRecentOf {
  RecentList::Place place;
  void operator()(Workbench& bench) const { RecentList{bench, place}.load(); }
};
struct ShowRecentOf {
  RecentList::Place place;
  void operator()(Workbench& bench) const { RecentList{bench, place}.show(); }
};
struct AddRecentOf {
  RecentList::Place place;
  void operator()(Workbench& bench, TextView entry) const { RecentList{bench, place}.add(entry); }
};
struct AddRecentOnceOf {
  RecentList::Place place;
  void operator()(Workbench& bench, TextView entry) const { RecentList{bench, place}.add_once(entry); }
};

inline constexpr TextView functions_section = u"Recent Functions";
inline constexpr RecentList::Place recent_curve{functions_section, u"Recent", "frmZoom", "mnuRecent",
                                                "mnuSeparator2"};
inline constexpr RecentList::Place recent_x{functions_section, u"RecentX", "frmZoom", "mnuRecentX", ""};
inline constexpr RecentList::Place recent_y2{functions_section, u"RecentY2", "frmZoom", "mnuRecentY2", ""};
inline constexpr RecentList::Place recent_y3{functions_section, u"RecentY3", "frmZoom", "mnuRecentY3", ""};
inline constexpr RecentList::Place recent_im{functions_section, u"RecentIm", "frmZoom", "mnuRecentIm", ""};
inline constexpr RecentList::Place recent_ok{functions_section, u"OK", "frmZoom", "mnuOK", ""};
inline constexpr RecentList::Place recent_file{u"MathPad", u"Recent", "MathPad", "mnuRecent",
                                               "mnuSeparator2"};

}  // namespace detail

/// \name The stored entries go into the menu.
///@{
inline constexpr detail::LoadRecentOf LoadRecent{detail::recent_curve};
inline constexpr detail::LoadRecentOf LoadRecentX{detail::recent_x};
inline constexpr detail::LoadRecentOf LoadRecentY2{detail::recent_y2};
inline constexpr detail::LoadRecentOf LoadRecentY3{detail::recent_y3};
inline constexpr detail::LoadRecentOf LoadRecentIm{detail::recent_im};
inline constexpr detail::LoadRecentOf LoadRecentOK{detail::recent_ok};
inline constexpr detail::LoadRecentOf LoadRecentFile{detail::recent_file};
///@}

/// \name The filled menu items become visible.
///@{
inline constexpr detail::ShowRecentOf ShowRecent{detail::recent_curve};
inline constexpr detail::ShowRecentOf ShowRecentX{detail::recent_x};
inline constexpr detail::ShowRecentOf ShowRecentY2{detail::recent_y2};
inline constexpr detail::ShowRecentOf ShowRecentY3{detail::recent_y3};
inline constexpr detail::ShowRecentOf ShowRecentIm{detail::recent_im};
inline constexpr detail::ShowRecentOf ShowRecentOK{detail::recent_ok};
inline constexpr detail::ShowRecentOf ShowRecentFile{detail::recent_file};
///@}

/// \name A new entry goes to the front. Only the list of files keeps an entry from standing twice.
///@{
inline constexpr detail::AddRecentOf AddRecent{detail::recent_curve};
inline constexpr detail::AddRecentOf AddRecentX{detail::recent_x};
inline constexpr detail::AddRecentOf AddRecentY2{detail::recent_y2};
inline constexpr detail::AddRecentOf AddRecentY3{detail::recent_y3};
inline constexpr detail::AddRecentOf AddRecentIm{detail::recent_im};
inline constexpr detail::AddRecentOf AddRecentOK{detail::recent_ok};
inline constexpr detail::AddRecentOnceOf AddRecentFile{detail::recent_file};
///@}

}  // namespace tarnmill
