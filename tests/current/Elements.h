#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace linewright {

// What the fonts draw for their letters, stated here anew so that it can judge the encoders.

/** Widths of bars and spaces in turn, beginning with a bar. */
using Elements = std::vector<double>;

/** Letters of the bars font: each a bar and a space, in modules. */
Elements BarsFontElements(std::string_view text);
/** Letters of the EAN/UPC font as modules: "1" dark, "0" light. What stands beside the bars and the
 *  gap in front of an add-on take no modules. */
std::string EanUpcFontModules(std::string_view text);
/** Letters of the Postnet font: "1" a tall bar, "0" a short one. */
std::string PostnetFontBars(std::string_view text);

/** Runs of dark and light modules. */
Elements RunsOf(std::string_view modules);
/** "n" and "w" for elements that are all either narrow, one module, or `wide`; "?" for others. */
std::string NarrowAndWide(const Elements& elements, double wide);

}  // namespace linewright
