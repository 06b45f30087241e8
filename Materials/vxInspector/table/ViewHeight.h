#pragma once

namespace vxInspector {

class ContentView;

/// Makes a table as high as its rows, but not higher than `mostLines` lines of text. It scrolls if it has more.
void fitHeight(ContentView& view, int mostLines);

} // namespace vxInspector
