#pragma once

#include <string_view>

/// The help and the about box. The help commands of all windows come here.
namespace gullymark::store {

/// The texts of the about box.
inline constexpr std::string_view about_text = "GullymarkAL® Ver. 1.00.07 - Alabama Edition";
inline constexpr std::string_view product_family = "Tarnel Brook";

/// Opens the help file beside the program in the desktop's viewer.
void show_help();

/// Shows the about box, modal.
void show_about_box();

}  // namespace gullymark::store
