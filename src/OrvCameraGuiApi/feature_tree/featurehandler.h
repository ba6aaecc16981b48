// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/controldata.h>
#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

#include <vector>

class HelpLines;

/**
 * How the features of one interface type are shown, edited, written and explained: everything in the feature tree that
 * depends on the type is in its handler. One object without state serves all features of a type.
 *
 * By default a feature has no text, no editor and no help of its own, and cannot be written. An operation that is given
 * a feature may read the device and passes on the exceptions of GenApi.
 */
class FeatureHandler
{
public:
    /** The handler of \a type; the default one where the tree knows nothing about the type. Throws nothing. */
    static const FeatureHandler &of(GenApi::EInterfaceType type);

    /** As above. The default one also for null and where GenApi does not answer the type. */
    static const FeatureHandler &of(GenApi::IValue *value);

    /** As above, but throws where GenApi does not answer the type. */
    static const FeatureHandler &of(const GenParamFeature &feature) { return of(feature.type()); }

    /** Whether the value column shows anything. */
    virtual bool hasValue() const { return true; }

    /** Whether text and edit value exist only while the feature can be read. */
    virtual bool isRead() const { return true; }

    /** The value as people read it; invalid when there is none. */
    virtual QVariant text(const GenParamFeature &feature) const;

    /** The value as the editor takes it; invalid when there is none. */
    virtual QVariant editValue(const GenParamFeature &feature) const;

    /**
     * Writes \a value, verified, or executes the command, whatever the value. False, and nothing written, when the type
     * cannot be written or \a value does not convert to it.
     */
    virtual bool write(const GenParamFeature &feature, const QVariant &value) const;

    /** The value that Space writes when the edit value is \a current; invalid when Space writes nothing. */
    virtual QVariant valueAtSpace(const QVariant &current) const;

    /**
     * A new editor without parent and without frame, set to the range and choices of \a feature but not to its value;
     * the caller owns it. Null where the view's own editor serves.
     */
    virtual ControlData createEditor(const GenParamFeature &feature) const;

    /** Lets \a editor, made for \a feature by anybody, offer nothing that the feature refuses. */
    virtual void refineEditor(QWidget &editor, GenApi::IValue &feature) const;

    /** Adds type, limits and choices to \a help. */
    virtual void describe(const GenParamFeature &feature, HelpLines &help) const;

protected:
    FeatureHandler() = default;
    ~FeatureHandler() = default;
    Q_DISABLE_COPY(FeatureHandler)
};

/** A row in the table of all handlers. */
struct HandledType
{
    GenApi::EInterfaceType type;
    const FeatureHandler *handler;
};

/** The rows of each family of types, from the file that implements it. @{ */
std::vector<HandledType> numberHandlers();
std::vector<HandledType> choiceHandlers();
std::vector<HandledType> textHandlers();
/** @} */
