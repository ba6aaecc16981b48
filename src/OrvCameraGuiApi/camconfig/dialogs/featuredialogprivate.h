// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogcamera.h>

#include <QDialog>

namespace OrvGui {

/** The base of the private parts of the feature dialogs, without what depends on the class of the dialog. */
class FeatureDialogBase : public OrvGenParam::ParamEventSink
{
public:
    ~FeatureDialogBase() override;
    Q_DISABLE_COPY(FeatureDialogBase)

    /** Shows \a device, which may be null; false when it has no parameters. The first call builds the dialog. */
    bool init(OrvCam::Device *device);

    /** For showEvent(): the pop-up sliders of the spin boxes become as long as the fields are wide. */
    void fitSliders();

    /** Calls report() on the GUI thread: at once, or from its event loop when this is another thread. */
    void OnParameterUpdate(OrvGenParam::Param *param) final;

    FeatureDialogCamera camera;

protected:
    explicit FeatureDialogBase(QDialog *dialog);

    virtual void setUpForm() = 0;
    /** Once, after the form: what the form cannot say, and the rules that decide after the mapper. */
    virtual void build() { }
    /** Exchanges the camera. */
    virtual bool setDevice(OrvCam::Device *device);
    /** After setDevice(). Without parameters the controls are empty and no feature is found. */
    virtual void bind(bool hasParameters) = 0;
    /** A parameter that the dialog listens to has changed; see FeatureDialogCamera::listen(). */
    virtual void report(OrvGenParam::Param *) { }

private:
    QDialog *const m_dialog;
    bool m_isBuilt = false;
};

/**
 * The private part of a feature dialog, as far as all have the same. A dialog adds its bindings and its arithmetic:
 *
 *     class OrvCamConfigXDialogPrivate : public FeatureDialogPrivate<OrvCamConfigXDialog, Ui_OrvCamConfigXDialog>
 *     {
 *     public:
 *         using FeatureDialogPrivate::FeatureDialogPrivate;
 *         ~OrvCamConfigXDialogPrivate() override { camera.letGo(); }
 *
 *         void bind(bool) override { camera.mapper.mapEnumParam(camera.enumeration("X"), ui.cmBoxX); }
 *     };
 *
 * The destructor of each lets the camera go, while its own members still exist: until then the camera may report.
 */
template <typename Dialog, typename Form>
class FeatureDialogPrivate : public FeatureDialogBase
{
public:
    explicit FeatureDialogPrivate(Dialog *dialog)
        : FeatureDialogBase(dialog)
        , q(dialog)
    {
    }

    Dialog *const q;
    Form ui;

protected:
    void setUpForm() override { ui.setupUi(q); }
};

} // namespace OrvGui
