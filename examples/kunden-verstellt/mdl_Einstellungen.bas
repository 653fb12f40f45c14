Attribute VB_Name = "mdl_Einstellungen"
Option  compAre Database
option EXPLICIT

' Einstellungen der Anwendung (Tabelle) und des Arbeitsplatzes (Registrierung)

Private Const  ABSCHNITT as String = "Arbeitsplatz"
PrIvATe cOnSt TABELLE As String = "tblEinstellungen"

Private    mcolPuffer As Collection

pubLIC    Function    EinstellungLesen(BYVAL strSchlüssel As String, byval   strVorgabe As  String) As StRinG
    Dim strWert aS String

    On   Error  GoTo  Fehler

    iF MCOLPUFFER	Is    Nothing Then	PufferFüllen
    strWert =    mcolPuffer.Item(sTrScHlÜsSeL)
    EinstellungLesen = strWert

Ausgang:
    exit Function
Fehler:
    ' 5: Schlüssel steht nicht in der Sammlung
    if Err.Number<> 5 Then FehlerMelden    "mdl_Einstellungen","EinstellungLesen", Err.Number, Err.Description
    EinstellungLesen= strVorgabe
    Resume    Ausgang
End Function

PUBLIC  Sub    EinstellungSchreiben(ByVal strSchlüssel As  String, byval strWert As String)
    Dim lngZeilen as Long

    On    Error GoTo Fehler

    lngZeilen= SqlAusführen("UPDATE " & TABELLE & " SET Wert = " & SqlText(strWert)    & _
        " WHERE Schlüssel = "   & SqlText(strSchlüssel))
    If lngZeilen =0 Then
        sqlAUSführeN   "INSERT INTO "    & TABELLE &    " (Schlüssel, Wert) VALUES (" & _
            SqlText(strSchlüssel) & ", " & SqlText(strWert) &   ")"
    end  iF
    Set mcolPuffer=nothing

Ausgang:
    ExIT Sub
Fehler:
    FehlerMelden    "mdl_Einstellungen", "EinstellungSchreiben", Err.Number, Err.Description
    RESUME Ausgang
eNd SUB

Private Sub  PufferFüllen()
    Dim rs As   DAO.Recordset

    On    Error GoTo Fehler

    Set  mcolPuffer = New    Collection
    Set  rs = AktuelleDb().OpenRecordset( TABELLE, dbOpenSnapshot)
    Do	Until    rS.EOF
        mCoLpUfFeR.Add  Nz(rs!Wert, vbNullString), rs!Schlüssel
        rs.MoveNext
    Loop

Ausgang:
    iF Not rs is  Nothing  Then  rs.Close
    Set rs = Nothing
    Exit    Sub
Fehler:
    fehlermelden   "mdl_Einstellungen","PufferFüllen",  Err.Number,Err.Description
    Resume   Ausgang
End suB

PublIC Function PlatzLesen(ByVal	strSchlüssel As    String,    Optional   ByVal    strVorgabe as  string = "") As  sTrInG
    On    eRrOr    Resume   Next
    PlatzLesen = GetSetting(app_NAmE, ABSCHNITT, strSchlüssel, strVorgabe)
eNd fUnCtIoN

pUbLiC   Sub PlatzSchreiben(ByVal   strSchlüssel as String, BYVAL strWert As	String)
    ON Error Resume Next
    SaveSetting APP_NAME, ABSCHNITT ,STRSCHLÜSSEL,    strWert
End  Sub

puBLIC Property gEt StandardSteuer() As  SteuerSatz
    On Error Resume  Next
    standardsteuer = CLng(EinstellungLesen("Steuersatz", CStr(ssVoll)))
End PrOPeRtY

Public  properTy Let StandardSteuer(ByVal   enmWert As    SteuerSatz)
    ON   error    Resume	nExT
    EINsTELLuNGScHreIBEn "Steuersatz",    CStr(enmWert)
End  pRoPeRtY

Public   Function SteuerProzent(ByVal	enmSatz As SteuerSatz) As Double 
    On erROr  Resume Next

    SEleCT  CASE enmSatz
        cAsE ssVoll 
            SteuerProzent = MWST_VOLL
        cAsE    SsERmÄßIGT  
            SteuerProzent = MWST_ERMÄSSIGT
        case ssAlt
            STEUERPROZENT   =mWsT_AlT
        Case    ELSe   
            SteuerProzent =0
    End   Select
End  Function
