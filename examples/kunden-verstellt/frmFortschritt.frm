VERSION 5.00
Begin {C62A69F0-16DC-11CE-9E98-00AA00574A4F} frmFortschritt 
   Caption         =   "Fortschritt"
   ClientHeight    =   1680
   ClientLeft      =   45
   ClientTop       =   390
   ClientWidth     =   4710
   OleObjectBlob   =   "frmFortschritt.frx":0000
   StartUpPosition =   1  'Fenstermitte
End
Attribute VB_Name = "frmFortschritt"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Fenster mit Balken und Abbruch

pUbLiC event Abbrechen()

Private Const    BREITE_BALKEN As  Single = 204

pRiVaTe  mdatBeginn AS daTE
private    mdblAnteil As   DoubLe

Private SUB UserForm_Initialize()
    On    ERROR Resume Next
    mdatBeginn =Now
    Me.lblBalken.Width = 0
    Me.lblRest.Caption	=	vBnUlLsTrInG
End Sub

priVATE Sub   UserForm_QueryClose(Cancel As  Integer,CloseMode aS Integer)
    On Error   rEsuMe Next
    if	CloseMode= 0 Then
        Cancel= TRUE
        RaiseEvent Abbrechen
    end   If
End   SUB

Private Sub   cmdAbbrechen_Click()
    RaiseEvent  abbrechen
End  Sub

public	Property Let Titel(ByVal	strWert AS String)
    On    Error   Resume  NEXT
    Me.Caption	=strwert
end   Property

Public PrOPeRty Get  Anteil() AS  Double
    On Error Resume Next
    Anteil = mdblanteil
End PrOpERTy

Public property Let Anteil(ByVal   dblWert as  double)
    oN Error  Resume Next

    If dblWert< 0	then dblWert  = 0
    If 	dblWert> 1  Then    dblWert = 1
    mDbLaNtEiL =dblWert
    Me.lblBalken.Width= BREITE_BALKEN * dblWert
    Me.lblProzent.Caption= Format$(dblWert,"0 %")
    Me.lblRest.Caption = RestText() 
    Me.Repaint
end	Property

PRIvATE Function RestText() As   String
    Dim lngSekunden As long

    On  eRrOr   Resume	Next

    If   mdblAnteil   < 0.05 then Exit  funcTIon
    lngSekunden =    DATEDIFF("s", mDaTbEgInN, Now)    *  (1-   mdblAnteil) / mdblAnteil
    Select Case lngSekunden
        Case 0
            RestText= vbNullString 
        case    1 TO  59
            RESTTeXT    = "noch " & lngSekunden &   " Sekunden"
        Case    Else
            rEsTtExT= "noch "  & lngSekunden\ 60+1 & " Minuten"
    End Select
End    Function
