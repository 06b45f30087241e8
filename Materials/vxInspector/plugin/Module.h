#pragma once

/// The entry function of the plug-in. The host calls it after the entries of the materials module. Adds the dock of the
/// inspector; does nothing in a program without windows. Does not throw, and reports errors to the message log. Safe to
/// call more than once.
extern "C" __attribute__((visibility("default"))) void initInspector();
