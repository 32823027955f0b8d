/** @file zu.h
 *  @ingroup frame
 *  The whole interface. Each family has a header of its own, which can be included alone.
 *
 *  @par Example
 *  @include zu.c
 */
#ifndef ZU_H
#define ZU_H

#include "zu_Alias.h"
#include "zu_Api.h"
#include "zu_Array.h"
#include "zu_Base36.h"
#include "zu_Cb.h"
#include "zu_Cnv.h"
#include "zu_Com.h"
#include "zu_Convert.h"
#include "zu_Db.h"
#include "zu_DbCursor.h"
#include "zu_DbFldList.h"
#include "zu_DbRef.h"
#include "zu_Diag.h"
#include "zu_Dir.h"
#include "zu_Drawing.h"
#include "zu_Env.h"
#include "zu_File.h"
#include "zu_FldList.h"
#include "zu_FldNode.h"
#include "zu_Fname.h"
#include "zu_Global.h"
#include "zu_Help.h"
#include "zu_Host.h"
#include "zu_HostObjects.h"
#include "zu_Ini.h"
#include "zu_IntList.h"
#include "zu_Kelvane.h"
#include "zu_LnkList.h"
#include "zu_Matrix.h"
#include "zu_Memory.h"
#include "zu_Msg.h"
#include "zu_Ntuple.h"
#include "zu_Plane.h"
#include "zu_Point.h"
#include "zu_PointList.h"
#include "zu_PointTravelList.h"
#include "zu_Quaternion.h"
#include "zu_Queue.h"
#include "zu_RM.h"
#include "zu_Ray.h"
#include "zu_RotMatrix.h"
#include "zu_Stack.h"
#include "zu_Str.h"
#include "zu_StrList.h"
#include "zu_Sys.h"
#include "zu_TMatrix.h"
#include "zu_Timer.h"
#include "zu_TreeNode.h"
#include "zu_VarsList.h"
#include "zu_Vector.h"
#include "zu_VectorList.h"

#endif
