// Windows, confirm dialogs, menus and lists of buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/ButtonsDropDownList.h"
#include "framework/gui/dialogs/ButtonsListBox.h"
#include "framework/gui/dialogs/ConfirmDialogComponent.h"
#include "framework/gui/dialogs/MultipleButtonMenuItem.h"
#include "framework/gui/dialogs/NonModalTopWindow.h"
#include "tests/support/TestEditor.h"
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>

namespace
{

using zembra::ButtonsPopupMenu;
using zembra::NonModalTopWindow;

/** A parent with a panel, the child that is never disabled, and two windows inside. */
struct InsideParent
{
    InsideParent()
    {
        parent.setSize (600, 400);
        exempt.setName (NonModalTopWindow::childThatStaysEnabled);
        content.setSize (200, 80);
        otherContent.setSize (200, 80);
        holder.setSize (600, 400);

        for (auto* child : { &panel, &exempt, &holder })
            parent.addAndMakeVisible (child);

        parent.addChildComponent (window);
        holder.addChildComponent (other);
    }

    juce::Component parent, panel, exempt, holder, content, otherContent;
    NonModalTopWindow window{ "a", juce::Colours::black, &content, &parent, &parent, false };
    NonModalTopWindow other{ "b", juce::Colours::black, &otherContent, nullptr, &parent, false };
};

struct CloseCounter final : NonModalTopWindow::Listener
{
    void windowClosed (NonModalTopWindow*) override { ++count; }
    int count = 0;
};

ButtonsPopupMenu::Buttons makeButtons (int count)
{
    ButtonsPopupMenu::Buttons buttons;

    for (int i = 0; i < count; ++i)
    {
        buttons.push_back (std::make_unique<juce::TextButton> ("item " + juce::String (i)));
        buttons.back()->setClickingTogglesState (true);
    }

    return buttons;
}

struct MenuListener final : ButtonsPopupMenu::Listener, zembra::ButtonsDropDownList::Listener
{
    void menuButtonSelected (ButtonsPopupMenu*, int index) override { chosen.add (index); }
    void itemSelected (zembra::ButtonsDropDownList*, int index) override { chosen.add (index); }
    juce::Array<int> chosen;
};

struct ListListener final : zembra::ButtonsListBox::Listener
{
    void buttonClicked (const juce::String& name, bool state) override
    {
        clicks.add (name + (state ? "+" : "-"));
    }

    void selectionChanged (const juce::Array<juce::uint8>& rows) override
    {
        selected.clear();

        for (const auto row : rows)
            selected += row != 0 ? "1" : "0";
    }

    juce::StringArray clicks;
    juce::String selected;
};

} // namespace

TEST (NonModalTopWindow, FreezesItsParentsOtherChildren)
{
    InsideParent p;
    p.window.setWindowVisible (true);
    EXPECT_TRUE (p.window.isVisible() && p.window.isWindowOpen());
    EXPECT_TRUE (p.parent.isEnabled() && p.window.isEnabled() && p.exempt.isEnabled());
    EXPECT_FALSE (p.panel.isEnabled() || p.holder.isEnabled());
    EXPECT_EQ (p.window.getBounds().getCentreX(), 300);

    // The second one thaws the child that it sits in; closing either thaws everything.
    p.other.setWindowVisible (true);
    EXPECT_TRUE (p.holder.isEnabled() && p.other.isEnabled());
    EXPECT_FALSE (p.panel.isEnabled());
    p.other.setWindowVisible (false);
    EXPECT_TRUE (p.panel.isEnabled() && p.holder.isEnabled() && p.window.isEnabled());
}

TEST (NonModalTopWindow, OpeningAnOpenOneKeepsItsPlace)
{
    InsideParent p;
    p.window.setWindowVisible (true);
    p.window.setTopLeftPosition (5, 7);
    p.other.setWindowVisible (true);
    p.window.setWindowVisible (true);
    EXPECT_EQ (p.window.getPosition(), juce::Point<int> (5, 7));
    EXPECT_EQ (p.parent.getChildren().getLast(), &p.window);
}

TEST (NonModalTopWindow, CloseButtonAndEscapeTellTheListeners)
{
    InsideParent p;
    CloseCounter counter;
    p.window.addListener (&counter);
    p.window.setWindowVisible (true);
    p.window.setWindowVisible (false);
    EXPECT_EQ (counter.count, 0) << "nobody but the user is reported";

    p.window.setWindowVisible (true);
    p.window.closeButtonPressed();
    EXPECT_EQ (counter.count, 1);
    EXPECT_FALSE (p.window.isVisible() || p.window.isWindowOpen());

    p.window.setWindowVisible (true);
    EXPECT_TRUE (p.window.escapeKeyPressed());
    EXPECT_EQ (counter.count, 2);
    EXPECT_TRUE (p.panel.isEnabled());
}

TEST (NonModalTopWindow, AddsItsExtraBorder)
{
    InsideParent p;
    const auto plain = p.window.getContentComponentBorder();
    p.window.setExtraBorder ({ 1, 2, 3, 4 });
    const auto border = p.window.getContentComponentBorder();
    EXPECT_EQ (border.getTop() - plain.getTop(), 1);
    EXPECT_EQ (border.getLeft() - plain.getLeft(), 2);
    EXPECT_EQ (border.getBottom() - plain.getBottom(), 3);
    EXPECT_EQ (border.getRight() - plain.getRight(), 4);
    EXPECT_GE (plain.getTop(), 20) << "the title bar";
}

TEST (NonModalTopWindow, OutsideItsParentFreezesTheWholeParent)
{
    if (! TestWindow::hasDisplay())
        GTEST_SKIP() << "needs a display";

    juce::Component parent, content;
    content.setSize (100, 50);
    {
        NonModalTopWindow window ("w", juce::Colours::black, &content, nullptr, &parent, true);
        window.setWindowVisible (true);
        EXPECT_TRUE (window.isOnDesktop() && window.isAlwaysOnTop());
        EXPECT_FALSE (parent.isEnabled());
        window.setWindowVisible (false);
        EXPECT_FALSE (window.isAlwaysOnTop());
        EXPECT_TRUE (parent.isEnabled());
    }
}

TEST (PluginDialogs, AnUnknownTabIsTheFirst)
{
    if (! TestWindow::hasDisplay())
        GTEST_SKIP() << "needs a display";

    TestProcessor vorlo;
    TestEditor editor (vorlo.processor);
    editor.setSize (750, 316);
    auto& dialogs = editor.getDialogs();

    for (const auto* name : { "About", "Preferences", "Tips" })
        dialogs.getAboutPrefsTabs().addTab (name, juce::Colour (0xffd3d3d3), new juce::Component(),
                                            true);

    for (const auto& [asked, shown] : { std::pair (1, 1), { 9, 0 }, { 2, 2 }, { -1, 0 } })
    {
        dialogs.showAboutOrPreferences (asked);
        EXPECT_EQ (dialogs.getAboutPrefsTabs().getCurrentTabIndex(), shown);
        EXPECT_TRUE (dialogs.getAboutPrefsWindow().isVisible());
    }

    EXPECT_EQ (dialogs.getAboutPrefsWindow().getName(), "Vorlo");
}

TEST (ConfirmDialog, ReportsWhichButton)
{
    struct Answers final : zembra::ConfirmDialogComponent::Listener
    {
        void confirmDialogClosed (zembra::ConfirmDialogComponent*, bool cancelled) override
        {
            all.add (cancelled);
        }

        juce::Array<bool> all;
    };

    Answers answers;
    zembra::ConfirmDialogComponent dialog ("Sure?", "cancel", "ok");
    dialog.addListener (&answers);
    dialog.setSize (320, 100);
    TestWindow window (dialog);

    for (auto* child : dialog.getChildren())
        if (dynamic_cast<juce::TextButton*> (child) != nullptr)
        {
            EXPECT_TRUE (dialog.getLocalBounds().contains (child->getBounds()));
            window.click (*child);
        }

    EXPECT_EQ (answers.all, (juce::Array<bool>{ true, false }));
}

TEST (ButtonsPopupMenu, SevenButtonsInThreeColumns)
{
    ButtonsPopupMenu menu (makeButtons (7));
    ASSERT_EQ (menu.getNumRows(), 3);
    EXPECT_EQ (menu.getRow (0).size(), 3u);
    EXPECT_EQ (menu.getRow (1).size(), 3u);
    ASSERT_EQ (menu.getRow (2).size(), 1u);
    EXPECT_EQ (menu.getRow (2)[0], menu.getButton (6));

    ButtonsPopupMenu::MultipleButtonMenuItem item (menu.getRow (0), 20);
    item.setSize (100, 20);
    EXPECT_EQ (menu.getButton (2)->getBounds(), (juce::Rectangle<int>{ 66, 0, 33, 20 }));
}

TEST (ButtonsPopupMenu, OneButtonIsOn)
{
    ButtonsPopupMenu menu (makeButtons (4));
    MenuListener listener;
    menu.addListener (&listener);
    menu.setSelected (2, false);
    EXPECT_TRUE (listener.chosen.isEmpty());
    EXPECT_TRUE (menu.getButton (2)->getToggleState());

    menu.setSelected (1, true);
    EXPECT_FALSE (menu.getButton (2)->getToggleState());
    menu.getButton (1)->setToggleState (false, juce::dontSendNotification);
    menu.setSelected (1, true);
    EXPECT_TRUE (menu.getButton (1)->getToggleState()) << "the choice stays on";
    menu.setSelected (99, true);
    menu.setSelected (-1, true);
    EXPECT_EQ (listener.chosen, (juce::Array<int>{ 1 }));
}

TEST (ButtonsDropDownList, ShowsTheChoice)
{
    zembra::ButtonsDropDownList list (makeButtons (5));
    MenuListener listener;
    list.addListener (&listener);
    list.setSelectedIndex (3, false);
    EXPECT_EQ (list.getMainButton().getButtonText(), "item 3");
    list.setSelectedIndex (9, true);
    EXPECT_EQ (list.getSelectedIndex(), 3);
    EXPECT_TRUE (listener.chosen.isEmpty());

    // A click in the menu.
    list.getMenu().setSelected (4, true);
    EXPECT_EQ (list.getSelectedIndex(), 4);
    EXPECT_EQ (list.getMainButton().getButtonText(), "item 4");
    EXPECT_EQ (listener.chosen, (juce::Array<int>{ 4 }));
}

TEST (ButtonsDropDownList, AMenuOutlivesItsList)
{
    if (! TestWindow::hasDisplay())
        GTEST_SKIP() << "needs a display";

    juce::Component parent;
    parent.setSize (200, 100);
    parent.addToDesktop (0);
    parent.setVisible (true);
    auto list = std::make_unique<zembra::ButtonsDropDownList> (makeButtons (7));
    parent.addAndMakeVisible (*list);
    list->setBounds (10, 10, 60, 20);
    list->showMenu();
    EXPECT_TRUE (list->getMenu().isMenuOpen());
    TestWindow::runMessages (100);
    list.reset();
    TestWindow::runMessages (100);
    juce::PopupMenu::dismissAllActiveMenus();
    TestWindow::runMessages (100);
    EXPECT_EQ (juce::ModalComponentManager::getInstance()->getNumModalComponents(), 0);
}

TEST (ButtonsListBox, ClicksAndCallsMoveTheSelection)
{
    using Type = zembra::ButtonsListBox::RowType;

    for (const auto multiple : { true, false })
    {
        zembra::ButtonsListBox list (multiple);
        ListListener listener;
        list.addListener (&listener);

        for (const auto* name : { "a", "b", "c" })
            list.addButton (name, multiple ? Type::toggle : Type::text);

        list.setSize (200, 100);
        TestWindow window (list);
        EXPECT_GE (list.getListBox().getRowHeight(), 20);
        const auto clickRow = [&] (int row)
        { window.click (*list.getListBox().getComponentForRowNumber (row)); };

        clickRow (0);
        EXPECT_EQ (listener.selected, "100");
        clickRow (2);
        EXPECT_EQ (listener.selected, multiple ? "101" : "001");
        clickRow (2);
        EXPECT_EQ (listener.selected, multiple ? "100" : "001");
        EXPECT_EQ (listener.clicks.joinIntoString (" "), multiple ? "a+ c+ c-" : "a+ c+ c+");

        list.setSelected (1, true, false);
        list.setSelected (0, false, false);
        EXPECT_EQ (listener.selected, multiple ? "010" : "010");
    }
}
