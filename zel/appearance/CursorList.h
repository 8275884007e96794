#pragma once

// The framework's cursors, in the order in which they are registered, which
// is kept as it is and not sorted by ID: ID, constant, resource name.
// One list, expanded by Cursor.h into the constants and by Cursor.cpp into
// the registration table, so that names and IDs cannot drift apart. The
// resource names follow "Cur_<picture>_<hot spot x>_<hot spot y>"; their
// pictures are drawn by tools/cursorgen into zel/resources/cursors/.
//
//   NAMED(id, constant, "resource")   a cursor with a constant in ZEL::Cursor
//   UNNAMED(id, "resource")           one known only by its ID
//
// 4015 and 4133 carry no cursor.

// clang-format off
#define ZEL_CURSOR_LIST(NAMED, UNNAMED) \
  NAMED(4000, k3DRotate, "Cur_3DRotate_7_7")                                 \
  NAMED(4001, kAreaSample, "Cur_AreaSample_3_20")                            \
  NAMED(4002, kCubeCrossSelection, "Cur_CubeCrossSelection_9_9")             \
  NAMED(4003, kDirectControlPointSelect, "Cur_DirectControlPointSelect_1_1") \
  NAMED(4004, kDirectionHandleSelection, "Cur_DirectionHandleSelection_1_1") \
  NAMED(4005, kDirectSelectAdd, "Cur_DirectSelectAdd_1_1")                   \
  NAMED(4006, kDirectSelectMove, "Cur_DirectSelectMove_1_1")                 \
  NAMED(4007, kDirectSelectNo, "Cur_DirectSelectNo_1_1")                     \
  NAMED(4008, kDirectSelectVerticalDrag, "Cur_DirectSelectVerticalDrag_1_1") \
  NAMED(4009, kDoubleTransitionCenter, "Cur_DoubleTransitionCenter_1_1")     \
  NAMED(4010, kDoubleTransitionEnd, "Cur_DoubleTransitionEnd_1_1")           \
  NAMED(4011, kDoubleTransitionStart, "Cur_DoubleTransitionStart_1_1")       \
  NAMED(4012, kDragFrame, "Cur_DragFrame_1_1")                               \
  NAMED(4013, kDragTab, "Cur_DragTab_1_1")                                   \
  NAMED(4014, kEditAnchor, "Cur_EditAnchor_1_1")                             \
  NAMED(4016, kExtract, "Cur_Extract_1_1")                                   \
  NAMED(4018, kEyedropperFat, "Cur_EyedropperFat_2_17")                      \
  NAMED(4019, kEyedropperFull, "Cur_EyedropperBlack_2_17")                   \
  NAMED(4017, kEyedropper, "Cur_Eyedropper_2_17")                            \
  NAMED(4021, kFistAdd, "Cur_FistAdd_11_11")                                 \
  NAMED(4022, kFistNo, "Cur_FistNo_11_11")                                   \
  NAMED(4020, kFist, "Cur_Fist_11_11")                                       \
  NAMED(4025, kHandPointSlider, "Cur_HandPointSlider_8_3")                   \
  NAMED(4024, kHandPoint, "Cur_HandPoint_8_3")                               \
  NAMED(4023, kHand, "Cur_Hand_11_11")                                       \
  NAMED(4026, kHoldFrameSegment, "Cur_HoldFrameSegment_8_8")                 \
  NAMED(4027, kHorizontalText, "Cur_HorizontalText_1_1")                     \
  NAMED(4028, kInsertLimitedShift, "Cur_InsertLimitedShift_1_1")             \
  NAMED(4029, kLift, "Cur_Lift_1_1")                                         \
  NAMED(4030, kLight1, "Cur_Light1_10_11")                                   \
  NAMED(4031, kLight2, "Cur_Light2_10_11")                                   \
  NAMED(4032, kLight3, "Cur_Light3_10_11")                                   \
  NAMED(4033, kLight4, "Cur_Light4_10_11")                                   \
  NAMED(4034, kLight5, "Cur_Light5_10_11")                                   \
  NAMED(4035, kLockToMedia, "Cur_LockToMedia_8_8")                           \
  NAMED(4037, kMoveAnchor, "Cur_MoveAnchor_1_1")                             \
  NAMED(4039, kMoveCopyNo, "Cur_MoveCopyNo_1_1")                             \
  NAMED(4038, kMoveCopy, "Cur_MoveCopy_1_1")                                 \
  NAMED(4040, kMoveSegment, "Cur_MoveLine_1_1")                              \
  NAMED(4036, kMove, "Cur_Move_1_1")                                         \
  NAMED(4041, kMultiRazor, "Cur_MultiRazor_3_9")                             \
  NAMED(4042, kMultiSelectLeft, "Cur_MultiSelectLeft_2_5")                   \
  NAMED(4043, kMultiSelectRight, "Cur_MultiSelectRight_19_5")                \
  NAMED(4044, kNadaArrow, "Cur_NadaArrow_0_0")                               \
  NAMED(4045, kNo, "Cur_No_8_8")                                             \
  NAMED(4118, kPan, "Cur_PanBehindTool_1_1")                                 \
  NAMED(4119, kPanAlt, "Cur_PanBehindToolAlt_1_1")                           \
  NAMED(4047, kPenAdd, "Cur_PenAdd_1_1")                                     \
  NAMED(4048, kPenClose, "Cur_PenClose_1_1")                                 \
  NAMED(4049, kPenContinue, "Cur_PenContinue_1_1")                           \
  NAMED(4050, kPenDelete, "Cur_PenSubstract_1_1")                            \
  NAMED(4051, kPenSelection, "Cur_PenSelection_1_1")                         \
  NAMED(4052, kPenStart, "Cur_PenNew_1_1")                                   \
  NAMED(4053, kPenVerticalAdjust, "Cur_PenVerticalAdjust_1_1")               \
  NAMED(4046, kPen, "Cur_Pen_1_1")                                           \
  NAMED(4055, kPrecisePath, "Cur_PrecisePath_9_9")                           \
  NAMED(4054, kPrecise, "Cur_Precise_9_9")                                   \
  NAMED(4056, kRateHead, "Cur_RateHead_11_10")                               \
  NAMED(4057, kRateNA, "Cur_RateNA_11_10")                                   \
  NAMED(4058, kRateTail, "Cur_RateTail_11_10")                               \
  NAMED(4060, kRazorNA, "Cur_RazorNA_3_9")                                   \
  NAMED(4059, kRazor, "Cur_Razor_3_9")                                       \
  NAMED(4061, kRearrangeLeft, "Cur_RearrangeLeft_1_1")                       \
  NAMED(4062, kRearrangeRight, "Cur_RearrangeRight_1_1")                     \
  NAMED(4124, kRemix, "Cur_RemixTool_1_1")                                   \
  NAMED(4125, kRemixNA, "Cur_RemixToolNA_1_1")                               \
  NAMED(4063, kReselect, "Cur_Reselect_1_1")                                 \
  NAMED(4064, kResizeHorizontal, "Cur_ResizeHorizontal_7_3")                 \
  NAMED(4065, kResizeVertical, "Cur_ResizeVertical_3_7")                     \
  NAMED(4066, kReverseSegment, "Cur_ReverseSegment_8_8")                     \
  NAMED(4067, kRippleHead, "Cur_RippleHead_15_11")                           \
  NAMED(4068, kRippleNA, "Cur_RippleNA_15_11")                               \
  NAMED(4069, kRippleTail, "Cur_RippleTail_15_11")                           \
  NAMED(4070, kRoll, "Cur_RollingTrim_14_11")                                \
  NAMED(4071, kRollNA, "Cur_RollingTrimNA_14_11")                            \
  NAMED(4073, kRotateBottomLeftCorner, "Cur_RotateBottomLeftCorner_8_8")     \
  NAMED(4074, kRotateBottomRightCorner, "Cur_RotateBottomRightCorner_8_8")   \
  NAMED(4075, kRotateFromBottom, "Cur_RotateFromBottom_8_8")                 \
  NAMED(4076, kRotateFromLeft, "Cur_RotateFromLeft_8_8")                     \
  NAMED(4077, kRotateFromRight, "Cur_RotateFromRight_8_8")                   \
  NAMED(4078, kRotateFromTop, "Cur_RotateFromTop_8_8")                       \
  NAMED(4079, kRotateTopLeftCorner, "Cur_RotateTopLeftCorner_8_8")           \
  NAMED(4080, kRotateTopRightCorner, "Cur_RotateTopRightCorner_8_8")         \
  NAMED(4072, kRotate, "Cur_Rotate_1_1")                                     \
  NAMED(4081, kScaleHorizontal, "Cur_ScaleHorizontal_9_9")                   \
  NAMED(4082, kScaleTLBR, "Cur_ScaleTLBR_9_9")                               \
  NAMED(4083, kScaleTRBL, "Cur_ScaleTRBL_9_9")                               \
  NAMED(4084, kScaleVertical, "Cur_ScaleVertical_9_9")                       \
  NAMED(4086, kSelectLeft, "Cur_SelectLeft_2_5")                             \
  NAMED(4087, kSelectRight, "Cur_SelectRight_19_5")                          \
  NAMED(4088, kSelectVerticalAdjust, "Cur_SelectVerticalAdjust_1_1")         \
  NAMED(4085, kSelect, "Cur_Select_1_1")                                     \
  NAMED(4089, kSingleTransitionCenter, "Cur_SingleTransitionCenter_1_1")     \
  NAMED(4090, kSingleTransitionEnd, "Cur_SingleTransitionEnd_1_1")           \
  NAMED(4091, kSingleTransitionStart, "Cur_SingleTransitionStart_1_1")       \
  NAMED(4093, kSlideA, "Cur_SlideA_13_10")                                   \
  NAMED(4094, kSlideNA, "Cur_SlideNA_13_15")                                 \
  NAMED(4092, kSlide, "Cur_Slide_13_15")                                     \
  NAMED(4096, kSlipNA, "Cur_SlipNA_13_10")                                   \
  NAMED(4095, kSlip, "Cur_Slip_13_10")                                       \
  NAMED(4097, kSmallMarquee, "Cur_SmallMarquee_7_7")                         \
  NAMED(4099, kSplitterHorizontalBig, "Cur_SplitterHorizontalBig_8_8")       \
  NAMED(4098, kSplitterHorizontal, "Cur_SplitterHorizontal_10_10")           \
  NAMED(4101, kSplitterVerticalBig, "Cur_SplitterVerticalBig_8_8")           \
  NAMED(4100, kSplitterVertical, "Cur_SplitterVertical_10_10")               \
  NAMED(4102, kTextEdit, "Cur_TextEdit_4_12")                                \
  NAMED(4103, kTinyMarquee, "Cur_TinyMarquee_5_5")                           \
  NAMED(4104, kTLZoomIn, "Cur_TLZoomIn_8_8")                                 \
  NAMED(4105, kTLZoomOut, "Cur_TLZoomOut_8_8")                               \
  NAMED(4106, kTrimHead, "Cur_TrimHead_15_11")                               \
  NAMED(4107, kTrimTail, "Cur_TrimTail_15_11")                               \
  NAMED(4108, kZELInsert, "Cur_ZELInsert_1_1")                               \
  NAMED(4109, kZELOverlay, "Cur_ZELOverlay_1_1")                             \
  NAMED(4111, kVerticalTextInRect, "Cur_VerticalText_9_4")                   \
  NAMED(4110, kVerticalText, "Cur_VerticalText_1_1")                         \
  NAMED(4112, kZoomIn, "Cur_ZoomIn_8_8")                                     \
  NAMED(4113, kZoomOut, "Cur_ZoomOut_8_8")                                   \
  NAMED(4116, kTrimIn, "Cur_TrimIn_9_10")                                    \
  NAMED(4117, kTrimOut, "Cur_TrimOut_9_10")                                  \
  NAMED(4114, kTrimTransitionHead, "Cur_TrimTransitionHead_8_11")            \
  NAMED(4115, kTrimTransitionTail, "Cur_TrimTransitionTail_8_11")            \
  NAMED(4120, kCrossArrow, "Cur_CrossArrow_10_10")                           \
  NAMED(4121, kMoveCrossArrow, "Cur_MoveCrossArrow_1_1")                     \
  NAMED(4122, kMoveHorizontal, "Cur_MoveHorizontal_1_1")                     \
  NAMED(4123, kMoveRotate, "Cur_MoveRotate_1_1")                             \
  NAMED(4126, kRasterMarquee, "Cur_ObjectSelection_9_9")                     \
  NAMED(4127, kRasterMarqueeAdd, "Cur_ObjectSelectionAdd_9_9")               \
  NAMED(4128, kRasterMarqueeSubtract, "Cur_ObjectSelectionSubstract_9_9")    \
  NAMED(4129, kRasterLasso, "Cur_ObjectLassoSelection_1_1")                  \
  NAMED(4130, kRasterLassoAdd, "Cur_ObjectLassoSelectionAdd_1_1")            \
  NAMED(4131, kRasterLassoSubtract, "Cur_ObjectLassoSelectionSubstract_1_1") \
  NAMED(4132, kGenExtendTrimHead, "Cur_AIGenTrimHead_15_12")                 \
  NAMED(4134, kGenExtendTrimTail, "Cur_AIGenTrimTail_15_12")                 \
  NAMED(4135, kGenExtendNA, "Cur_AIGenExtendVideoOrAudioNA_15_12")           \
  UNNAMED(4500, "Cur_MoveTransition_1_1")                                    \
  UNNAMED(4501, "Cur_MoveTransitionClear_1_1")                               \
  UNNAMED(4502, "Cur_TrimTransitionHeadClear_8_11")                          \
  UNNAMED(4503, "Cur_TrimTransitionTailClear_8_11")
// clang-format on
