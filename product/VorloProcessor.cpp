// Construction, parameter callback and preparation of the product's processor.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/VorloProcessor.h"

#include "product/VorloEditor.h"

namespace
{

zembra::ProductInfo makeProductInfo()
{
    return { "Ombrel", "Vorlo", VORLO_VERSION, "Oct 18 2016" };
}

/** What a host without a play head, or one that leaves things out, is taken to play. */
juce::AudioPlayHead::PositionInfo makeDefaultPosition()
{
    juce::AudioPlayHead::PositionInfo info;
    info.setBpm (120.0);
    info.setTimeSignature (juce::AudioPlayHead::TimeSignature{ 4, 4 });
    return info;
}

} // namespace

juce::AudioProcessor::BusesProperties VorloProcessor::makeStereoBuses()
{
    return BusesProperties()
        .withInput ("Input", juce::AudioChannelSet::stereo())
        .withOutput ("Output", juce::AudioChannelSet::stereo());
}

VorloProcessor::VorloProcessor (const zembra::FolderRoots& roots)
    : PluginProcessor (makeProductInfo(), roots, makeStereoBuses()),
      hostIsLogic (juce::PluginHostType().isLogic()),
      positionInfo (makeDefaultPosition()),
      dryWet (*this, -48.0, 18.0),
      params (getParamSet())
{
    drive.param = &params.drive;
    driveDepth.param = &params.driveModDepth;
    crush.param = &params.crush;
    crushDepth.param = &params.crushModDepth;
    downsamp.param = &params.downsamp;
    downsampDepth.param = &params.downsampModDepth;
    filterFreqs[FilterStage::lowPass].param = &params.lowpassFreq;
    filterRes[FilterStage::lowPass].param = &params.lowpassRes;
    filterFreqs[FilterStage::hiPass].param = &params.hipassFreq;
    filterRes[FilterStage::hiPass].param = &params.hipassRes;
    filterFreqDepth.param = &params.filterFreqModDepth;
    filterResDepth.param = &params.filterResModDepth;

    for (auto* buffer : { &dryBuffer, &modBuffer })
        buffer->clear();

    listenToParams();
    setUpComplete();
}

VorloProcessor::~VorloProcessor()
{
    endMessages();

    for (auto* param : getParamSet())
        param->removeListener (this);
}

void VorloProcessor::listenToParams()
{
    for (auto* param : getParamSet())
        param->addListener (this);
}

std::array<VorloProcessor::CachedParam*, 10> VorloProcessor::getNormalisedCaches()
{
    return { &drive,         &driveDepth,      &crush,          &crushDepth,   &downsamp,
             &downsampDepth, &filterFreqDepth, &filterResDepth, &filterRes[0], &filterRes[1] };
}

void VorloProcessor::paramChanged (zembra::Param* param, double plain, double normalised,
                                   int source)
{
    PluginProcessor::paramChanged (param, plain, normalised, source);

    for (auto* cache : getNormalisedCaches())
        if (param == cache->param)
            cache->value = static_cast<float> (normalised);

    for (auto& cache : filterFreqs)
        if (param == cache.param)
            cache.value = static_cast<float> (plain);

    if (param == &params.filterType)
        filterType = static_cast<int> (plain);
    else if (param == &params.bypassFilter)
        filterEnabled = normalised <= 0.5;
    else if (param == &params.lfoSyncOrFree)
        lfoSyncChanged (normalised >= 0.5, source);
    else if (param == &params.lfoFreeRate)
        lfoClock.setFreeRate (static_cast<float> (plain));
    else if (param == &params.lfoSyncedPeriod)
        lfoClock.setDivision (getLfoDivision (static_cast<int> (plain)));
    else if (param == &params.lfoWaveform)
    {
        const auto choice = juce::jlimit (0, 3, static_cast<int> (plain));
        lfoWaveform = choice == 3 ? static_cast<int> (ZembraLfo::random) : choice;
    }
}

void VorloProcessor::lfoSyncChanged (bool synced, int source)
{
    lfoSynced = synced;
    lfoClock.setSynced (synced);

    if (synced)
        params.lfoSyncedPeriod.setValue (lfoClock.getDivisionIndex(), source, &getUndoManager());

    params.lfoFreeRate.setValue (static_cast<double> (lfoClock.getRate()), source,
                                 &getUndoManager());
}

bool VorloProcessor::isBusesLayoutSupported (const BusesLayout& layouts) const
{
    // Wrappers ask for every layout up to 64 channels when they make an instance.
    if (layouts.getMainInputChannels() > 2 || layouts.getMainOutputChannels() > 2)
        return false;

    const auto in = layouts.getMainInputChannelSet();
    const auto out = layouts.getMainOutputChannelSet();
    const auto mono = juce::AudioChannelSet::mono();
    const auto stereo = juce::AudioChannelSet::stereo();
    return (in == stereo && out == stereo) || (in == mono && (out == mono || out == stereo));
}

juce::AudioProcessorEditor* VorloProcessor::createProductEditor()
{
    return new VorloEditor (*this);
}

void VorloProcessor::initialiseEditor (juce::AudioProcessorEditor& editor)
{
    static_cast<VorloEditor&> (editor).initialise();
}

void VorloProcessor::prepareToPlay (double newSampleRate, int maximumBlockSize)
{
    numInputs = getTotalNumInputChannels();
    numOutputs = getTotalNumOutputChannels();
    // A rate that is no number is taken for the lowest, too.
    constexpr double highestRate = 1e7;
    const auto rate =
        newSampleRate > 1.0 ? static_cast<float> (std::min (newSampleRate, highestRate)) : 1.0f;

    if (maximumBlockSize > blockCapacity)
    {
        blockCapacity = juce::nextPowerOfTwo (2 * maximumBlockSize);

        for (auto* buffer : { &dryBuffer, &modBuffer })
            buffer->setSize (2, blockCapacity, false, true);
    }

    if (rate != sampleRate)
    {
        sampleRate = rate;
        const auto doubleRate = static_cast<double> (rate);
        lfoCoefficients = juce::IIRCoefficients::makeLowPass (doubleRate, 1000.0);
        slowCoefficients = juce::IIRCoefficients::makeLowPass (doubleRate, 10.0);
        lfoSmoother.setCoefficients (lfoCoefficients);

        for (auto& smoother : channelSmoothers)
            smoother.setCoefficients (slowCoefficients);

        filterStage.prepare (rate, maximumBlockSize);
    }

    lfo.prepare (rate);
    downsampler.prepare (rate);
    pollPlayHead();
    lfoClock.adopt();
    resetChain();
}

void VorloProcessor::resetChain()
{
    lfoSmoother.reset();

    for (auto& smoother : channelSmoothers)
        smoother.reset();

    filterStage.reset();

    downsampler.restart();
}
