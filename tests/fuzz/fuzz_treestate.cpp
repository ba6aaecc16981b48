// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// The text that arranges a feature tree view, given to a view with nested categories.
// No name looks like a marker with a number behind it, which would be read as one: nothing is escaped.

#include "fuzzer.h"

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>
#include <OrvGenApi/nodemap.h>

#include <QApplication>
#include <QTreeView>

namespace {

OrvGenApi::NodeMap &nodeMap()
{
    static const std::unique_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromString(
        R"(<RegisterDescription ModelName="M" VendorName="V" xmlns="http://www.genicam.org/GenApi/Version_1_1">
<Category Name="Root"><pFeature>A</pFeature><pFeature>B</pFeature><pFeature>Odd</pFeature></Category>
<Category Name="A"><pFeature>AA</pFeature><pFeature>X</pFeature></Category>
<Category Name="AA"><Visibility>Expert</Visibility><pFeature>Y</pFeature></Category>
<Category Name="B"><Visibility>Guru</Visibility><pFeature>Y</pFeature></Category>
<Category Name="Odd"><DisplayName>&amp;lt;/A</DisplayName><pFeature>X</pFeature></Category>
<Integer Name="X"><Value>1</Value></Integer>
<Integer Name="Y"><Value>2</Value></Integer>
</RegisterDescription>)");
    return *map;
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "fuzz_treestate";
    static char *arguments[] = {name, nullptr};
    new QApplication(count, arguments); // lives as long as the program
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    OrvGui::OrvGenParamTreeView view(&nodeMap(), nullptr);
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    view.loadState(text.constData());
    FUZZ_REQUIRE(view.visibility() >= OrvGui::Basic && view.visibility() <= OrvGui::Guru);
    FUZZ_REQUIRE(view.treeView()->columnWidth(0) >= 0);

    // What a view saves arranges another one alike, whatever this one was given before.
    const QByteArray saved = view.saveState();
    OrvGui::OrvGenParamTreeView other(&nodeMap(), nullptr);
    other.loadState(saved.constData());
    FUZZ_REQUIRE(other.visibility() == view.visibility());
    FUZZ_REQUIRE(other.treeView()->columnWidth(0) == view.treeView()->columnWidth(0));
    return 0;
}
