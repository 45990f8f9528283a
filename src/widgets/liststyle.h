#pragma once

class ListView;

/// Font and colours that the settings choose for the main window's lists. The default colours are the
/// palette's, so that a dark desktop has dark lists.
void applyListStyle(ListView &list);
