// Set-up and answers of the confirm dialog.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/ConfirmDialogComponent.h"

namespace zembra
{

ConfirmDialogComponent::ConfirmDialogComponent (const juce::String& question,
                                                const juce::String& button1Text,
                                                const juce::String& button2Text)
    : questionLabel ("questionText", question),
      button1 (button1Text),
      button2 (button2Text)
{
    questionLabel.setLookAndFeel (&labelLookAndFeel);
    questionLabel.setJustificationType (juce::Justification::centred);
    addAndMakeVisible (questionLabel);

    for (auto* button : { &button1, &button2 })
    {
        button->addListener (this);
        addAndMakeVisible (button);
    }
}

ConfirmDialogComponent::~ConfirmDialogComponent()
{
    questionLabel.setLookAndFeel (nullptr);
    button1.removeListener (this);
    button2.removeListener (this);
}

void ConfirmDialogComponent::setQuestion (const juce::String& question)
{
    questionLabel.setText (question, juce::dontSendNotification);
}

void ConfirmDialogComponent::buttonClicked (juce::Button* button)
{
    const auto cancelled = button == &button1;

    for (int i = listeners.size(); --i >= 0;)
        if (auto* const listener = listeners[i])
            listener->confirmDialogClosed (this, cancelled);
}

void ConfirmDialogComponent::resized()
{
    if (auto* const methods = dynamic_cast<ZembraLookAndFeelMethods*> (&getLookAndFeel()))
    {
        methods->layoutConfirmDialog (*this, questionLabel, button1, button2);
        return;
    }

    auto area = getLocalBounds().reduced (10);
    auto buttons = area.removeFromBottom (22);
    questionLabel.setBounds (area);
    button1.setBounds (buttons.removeFromLeft (buttons.getWidth() / 2).reduced (4, 0));
    button2.setBounds (buttons.reduced (4, 0));
}

} // namespace zembra
