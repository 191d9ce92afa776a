// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decodemodels.h"

#include <cstddef>

namespace {

// A tidier list would trust other computers. Leading blanks, duplicates and the spelling "Tesia"
// stay: what a computer is trusted with depends on them letter by letter.

const char *const IntelH264Models[] = {
    "Media Accelerator 3600 Series",
    "Graphics 4000",
    "Graphics 4400",
    "Graphics 4600",
    "Graphics 5300",
    "Graphics 5500",
    "Graphics Family (Haswell)",
    "Graphics (Ivy Bridge)",
    "Graphics (Haswell)",
    "Graphics (Cherry Trail)",
    " Graphics (Apollo Lake)",
    "Graphics 500",
    "Graphics 515",
    "Graphics 520",
    "Graphics 530",
    "Graphics 610",
    "Graphics 615",
    "Graphics 620",
    "Graphics 630",
    "Iris Graphics",
    "Iris Plus Graphics",
    "Pro Graphics 580",
    "UHD Graphics",
    "UHD Graphics 605",
    "UHD Graphics 610",
    "UHD Graphics 617",
    "UHD Graphics 620",
    "UHD Graphics 630",
    "Embedded Media and Graphics Controller",
    "UHD Graphics",
};

const char *const AmdH264Models[] = {
    "HD 3200 Graphics",
    "HD 3300 Graphics",
    "HD 4200",
    "HD 4200 Series",
    "HD 4300 Series",
    "HD 4500 Series",
    "HD 4550",
    "HD 4600 Series",
    " HD 4650",
    "HD 4800 Series",
    "HD 7610M",
    "Pro WX 4100",
    "R5 Graphics (Bristol Ridge)",
    "R7 Graphics (Bristol Ridge)",
    "R9 380 Series",
    "RX 460 Graphics",
    "RX 470 Graphics",
    "RX 480 Graphics",
    "550 Series",
    "RX 560 Series",
    "RX 570 Series",
    "RX 580 Series",
    "RX 590 Series",
    "RX Vega (Vega10)",
    "RX Vega 11 Graphics",
    "RX Vega M GL Graphics",
    "Vega 3 Graphics",
    "Vega 8 Graphics",
    "Vega 11 Graphics",
    "VII",
    "RX 5700",
    "RX 5700",
    "RX 5700 XT",
    "RX 5600",
    "RX 5500",
    "RX 5300",
};

const char *const NvidiaH264Models[] = {
    "MX150",          "MX230",          "MX250",        "GT 520",       "610M",
    "GT 610",         "GT 640",         "GT 645M",      "GTX 645",      "GT 650M",
    "GTX 650",        "GTX 660",        "GTX 670",      "GTX 675",      "GTX 680",
    "GT 710",         "GT 720",         "GT 730",       "GT 740",       "GT 740M",
    "GTX 745",        "GT 750M",        "GTX 750",      "GT 755M",      "GTX 760",
    "GTX 770",        "GTX 780",        "GTX 850",      "GTX 860",      "GTX 950",
    "GTX 960",        "GTX 965M",       "GTX 970",      "GTX 980",      "GT 1030",
    "GTX 1030",       "GTX 1050",       "GTX 1060",     "GTX 1070",     "GTX 1080",
    "GTX 1650",       "GTX 1660",       "RTX 2060",     "RTX 2070",     "RTX 2080",
    "GTX TITAN X",    "NVS 310",        "NVS 510",      "RTX 5000",     "Quadro K2000M",
    "Quadro K600",    "Quadro M1000M",  "Quadro M4000", "Quadro P400",  "Quadro P2000",
    "Quadro P4000",   "Quadro GP100",   "Quadro GV100", "Quadro P5000", "Quadro RTX8000",
    "Quadro RTX6000", "Quadro RTX4000", "Tesia P4",     "Tesia P6",     "Tesia P40",
    "Tesia P100",     "Tesia V100",     "Tesia T4",
};

const char *const IntelH265Models[] = {
    "Graphics 4400",
    "Graphics 4600",
    "Graphics 5500",
    "Graphics Family (Haswell)",
    "Graphics (Cherry Trail)",
    " Graphics (Apollo Lake)",
    "Graphics 500",
    "Graphics 515",
    "Graphics 520",
    "Graphics 530",
    "Graphics 610",
    "Graphics 615",
    "Graphics 620",
    "Graphics 630",
    "Iris Graphics",
    "Iris Plus Graphics",
    "Pro Graphics 580",
    "UHD Graphics 605",
    "UHD Graphics 610",
    "UHD Graphics 617",
    "UHD Graphics 620",
    "UHD Graphics 630",
    "UHD Graphics",
};

const char *const AmdH265Models[] = {
    "Pro WX 4100",
    "R5 Graphics (Bristol Ridge)",
    "R7 Graphics (Bristol Ridge)",
    "RX 460 Graphics",
    "RX 470 Graphics",
    "RX 480 Graphics",
    "550 Series",
    "RX 560 Series",
    "RX 570 Series",
    "RX 580 Series",
    "RX 590 Series",
    "RX Vega (Vega10)",
    "RX Vega 11 Graphics",
    "RX Vega M GL Graphics",
    "Vega 3 Graphics",
    "Vega 8 Graphics",
    "Vega 11 Graphics",
    "VII",
    "RX 5700",
    "RX 5700 XT",
    "RX 5600",
    "RX 5500",
    "RX 5300",
};

const char *const NvidiaH265Models[] = {
    "MX150",        "MX230",          "MX250",          "GTX 645",        "GTX 660",
    "GTX 670",      "GTX 675",        "GTX 680",        "GTX 745",        "GTX 750",
    "GTX 760",      "GTX 770",        "GTX 780",        "GTX 850",        "GTX 860",
    "GTX 950",      "GTX 960",        "GTX 965M",       "GTX 970",        "GTX 980",
    "GT 1030",      "GTX 1030",       "GTX 1050",       "GTX 1060",       "GTX 1070",
    "GTX 1080",     "GTX 1650",       "GTX 1660",       "RTX 2060",       "RTX 2070",
    "RTX 2080",     "GTX TITAN X",    "RTX 5000",       "Quadro M1000M",  "Quadro M4000",
    "Quadro P400",  "Quadro P2000",   "Quadro P4000",   "Quadro GP100",   "Quadro GV100",
    "Quadro P5000", "Quadro RTX8000", "Quadro RTX6000", "Quadro RTX4000", "Tesia P4",
    "Tesia P6",     "Tesia P40",      "Tesia P100",     "Tesia V100",     "Tesia T4",
};

template <std::size_t Size>
QStringList listOf(const char *const (&models)[Size])
{
    QStringList list;
    for (const char *model : models)
        list << QString::fromLatin1(model);
    return list;
}

} // namespace

DecodeModels decodeModels()
{
    return {listOf(IntelH264Models), listOf(AmdH264Models), listOf(NvidiaH264Models),
            listOf(IntelH265Models), listOf(AmdH265Models), listOf(NvidiaH265Models)};
}
