#pragma once

#include <cstdint>

/// The bits of a panel's state word `imageModeFlag`. Each panel keeps a word of its own.
enum ImageModeFlag : std::int32_t {
    VendorColorMatching = 0x1,      ///< the printer's own colour settings apply
    MonoColorMode = 0x2,            ///< colour mode is mono
    DuplexOn = 0x4,                 ///< two-sided printing; "PlainDuplex" stands for plain paper
    SlowDryingUnavailable = 0x8,    ///< the medium takes no slow drying
    TransparenciesMedium = 0x10,    ///< "Transparencies" is selected
    BorderlessPaper = 0x20,         ///< the paper is borderless
    EnvelopePaper = 0x40,           ///< the paper is an envelope
    BiDirLeftAlone = 0x80,          ///< envelope or postcard: no bi-directional rule
    FaxOutput = 0x200,              ///< the job goes to fax
    NewerModelClass = 0x400,        ///< the printer belongs to the newer class
    HelpRegistered = 0x800,         ///< the help book is registered
    JpegUnavailable = 0x1000,       ///< JPEG printing cannot be selected
    PanelOnScreen = 0x2000,         ///< the panel is on screen
    DiscPaper = 0x4000,             ///< the paper is a printable disc
    PreviousDiscPaper = 0x8000,     ///< the paper before was a printable disc
    DiffusionHalftone = 0x10000,    ///< the halftone pattern is "Diffusion"
    NaturalColorMatching = 0x20000, ///< natural colour matching is in force
};
