// Opening, closing and following the host of a secondary window.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/NonModalTopWindow.h"

#include "framework/gui/HostWindow.h"

namespace zembra
{

namespace
{

constexpr int barHeight = 20;
constexpr int foregroundCheckPeriodMs = 61;

} // namespace

NonModalTopWindow::NonModalTopWindow (const juce::String& title, juce::Colour background,
                                      juce::Component* centreAroundToUse,
                                      juce::Component* dialogParentToUse,
                                      bool staysWithForegroundToUse)
    : DialogWindow (title, background, true, false),
      dialogParent (dialogParentToUse),
      centreAround (centreAroundToUse),
      staysWithForeground (staysWithForegroundToUse)
{
    setTitleBarButtonsRequired (closeButton, false);
    setTitleBarHeight (barHeight);

    if (staysWithForeground)
        startTimer (foregroundCheckPeriodMs);
}

NonModalTopWindow::NonModalTopWindow (const juce::String& title, juce::Colour background,
                                      juce::Component* content, juce::Component* centreAroundToUse,
                                      juce::Component* dialogParentToUse,
                                      bool staysWithForegroundToUse)
    : NonModalTopWindow (title, background, centreAroundToUse, dialogParentToUse,
                         staysWithForegroundToUse)
{
    contentRef = content;
    setContentNonOwned (content, true);
}

NonModalTopWindow::~NonModalTopWindow()
{
    stopTimer();
    clearContentComponent();
}

void NonModalTopWindow::setWindowVisible (bool shouldBeVisible)
{
    if (shouldBeVisible)
        open();
    else
        close();
}

void NonModalTopWindow::open()
{
    if (isVisible())
    {
        toFront (true);
        return;
    }

    if (staysWithForeground)
        setAlwaysOnTop (true);

    // The native window is made when it is first needed: most windows of most editors never open.
    if (getParentComponent() == nullptr && ! isOnDesktop())
        addToDesktop();

    if (centreAround != nullptr)
        centreAroundComponent (centreAround, getWidth(), getHeight());

    freezeParent (true);
    setEnabled (true);
    wantsToBeVisible = true;
    setVisible (true);
    toFront (true);
}

void NonModalTopWindow::close()
{
    // A window that is hidden together with its host counts as open.
    if (! isVisible() && ! wantsToBeVisible)
        return;

    if (staysWithForeground)
        setAlwaysOnTop (false);

    wantsToBeVisible = false;
    setVisible (false);
    freezeParent (false);
}

void NonModalTopWindow::freezeParent (bool shouldBeFrozen)
{
    if (dialogParent == nullptr)
        return;

    if (! dialogParent->isParentOf (this))
    {
        dialogParent->setEnabled (! shouldBeFrozen);
        return;
    }

    for (auto* child : dialogParent->getChildren())
    {
        if (! shouldBeFrozen || child->isParentOf (this))
            child->setEnabled (true);
        else if (child != this && child->getName() != childThatStaysEnabled)
            child->setEnabled (false);
    }
}

void NonModalTopWindow::timerCallback()
{
    if (! wantsToBeVisible)
        return;

    const auto inForeground = isHostInForeground();

    if (isVisible() != inForeground)
        setVisible (inForeground);
}

void NonModalTopWindow::closeButtonPressed()
{
    setWindowVisible (false);

    for (int i = listeners.size(); --i >= 0;)
        if (auto* const listener = listeners[i])
            listener->windowClosed (this);
}

bool NonModalTopWindow::escapeKeyPressed()
{
    closeButtonPressed();
    return true;
}

void NonModalTopWindow::setExtraBorder (juce::BorderSize<int> newBorder)
{
    extraBorder = newBorder;
    resized();
}

juce::BorderSize<int> NonModalTopWindow::getContentComponentBorder()
{
    auto border = DialogWindow::getContentComponentBorder();
    border.setTop (border.getTop() + extraBorder.getTop());
    border.setLeft (border.getLeft() + extraBorder.getLeft());
    border.setBottom (border.getBottom() + extraBorder.getBottom());
    border.setRight (border.getRight() + extraBorder.getRight());
    return border;
}

void NonModalTopWindow::refreshBounds()
{
    if (auto* const limits = getConstrainer())
        limits->setBoundsForComponent (this, getBounds(), false, false, false, false);
    else
        setBounds (getBounds());
}

} // namespace zembra
